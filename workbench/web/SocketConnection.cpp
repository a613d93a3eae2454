#include "web/SocketConnection.h"

#include <boost/asio/post.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/websocket/rfc6455.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <utility>

namespace tellurix::workbench {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;

namespace {

/// More than this waits to be sent only when the page has stopped reading.
constexpr std::size_t mostOutgoingBytes = 32UL * 1024 * 1024;

std::string ended(const char* reason) {
    return nlohmann::json{{"ended", reason}}.dump();
}

} // namespace

SocketConnection::SocketConnection(beast::tcp_stream stream, Sessions& sessions, Limits limits,
                                   std::shared_ptr<void> place)
    : stream_(std::move(stream)),
      greetingTimer_(stream_.get_executor()),
      sessions_(sessions),
      limits_(limits),
      place_(std::move(place)) {}

void SocketConnection::guarded(const std::function<void()>& action) {
    try {
        action();
    } catch (const ProtocolError&) {
        closeWith(CloseCode::bad_payload);
    } catch (const std::exception& error) {
        std::cerr << "Connection failed: " << error.what() << '\n';
        drop();
    }
}

void SocketConnection::start(const Request& request) {
    guarded([&] {
        // From here on the WebSocket has timeouts of its own.
        beast::get_lowest_layer(stream_).expires_never();
        stream_.set_option(websocket::stream_base::timeout{
            .handshake_timeout = limits_.patience,
            .idle_timeout = std::chrono::seconds{30},
            .keep_alive_pings = true,
        });
        stream_.read_message_max(limits_.messageBytes);
        stream_.async_accept(request, [self = shared_from_this()](Code error) {
            if (error) return;
            self->guarded([&self] {
                self->greetingTimer_.expires_after(self->limits_.patience);
                self->greetingTimer_.async_wait([self](Code cancelled) {
                    if (!cancelled && !self->session_) self->drop();
                });
                self->read();
            });
        });
    });
}

void SocketConnection::read() {
    stream_.async_read(buffer_, [self = shared_from_this()](Code error, std::size_t) {
        if (error) {
            self->greetingTimer_.cancel();
            if (self->session_) self->session_->detach(*self);
            return;
        }
        self->guarded([&self] {
            self->received();
            self->buffer_.consume(self->buffer_.size());
        });
        // Once closing, reading on only waits for the other side's answer to that.
        self->guarded([&self] { self->read(); });
    });
}

void SocketConnection::received() {
    if (closing_) return;
    if (!stream_.got_text()) {
        closeWith(CloseCode::unknown_data);
        return;
    }
    const std::string message = beast::buffers_to_string(buffer_.data());
    if (!session_) {
        greet(parseHello(message));
    } else if (!session_->post(*this, parsePageMessage(message))) {
        closeWith(CloseCode::policy_error);
    }
}

void SocketConnection::greet(const Hello& hello) {
    greetingTimer_.cancel();
    const auto self = shared_from_this();
    const auto known = sessions_.find(hello.session);
    if (known && known->attach(self, hello.takeOver)) {
        session_ = known;
        return;
    }
    const auto fresh = hello.orNew ? sessions_.create() : nullptr;
    if (fresh && fresh->attach(self, false)) {
        session_ = fresh;
        return;
    }
    enqueue(ended(hello.orNew ? "full" : "gone"));
    closeWith(hello.orNew ? CloseCode::try_again_later : CloseCode::normal);
}

void SocketConnection::send(std::string message) {
    net::post(stream_.get_executor(), [self = shared_from_this(), message = std::move(message)]() mutable {
        self->guarded([&] { self->enqueue(std::move(message)); });
    });
}

void SocketConnection::close() {
    net::post(stream_.get_executor(),
              [self = shared_from_this()] { self->guarded([&] { self->closeWith(CloseCode::normal); }); });
}

void SocketConnection::enqueue(std::string message) {
    if (closing_) return;
    outgoingBytes_ += message.size();
    if (outgoingBytes_ > mostOutgoingBytes) {
        drop();
        return;
    }
    outgoing_.push_back(std::move(message));
    write();
}

void SocketConnection::write() {
    if (writing_) return;
    if (outgoing_.empty()) {
        if (!closing_) return;
        writing_ = true;
        stream_.async_close(closeCode_, [self = shared_from_this()](Code) {});
        return;
    }
    writing_ = true;
    stream_.text(true);
    stream_.async_write(net::buffer(outgoing_.front()), [self = shared_from_this()](Code error, std::size_t) {
        if (error) return;
        self->guarded([&self] {
            self->writing_ = false;
            self->outgoingBytes_ -= self->outgoing_.front().size();
            self->outgoing_.pop_front();
            self->write();
        });
    });
}

void SocketConnection::closeWith(CloseCode code) {
    if (closing_) return;
    closing_ = true;
    closeCode_ = code;
    write();
}

void SocketConnection::drop() {
    beast::get_lowest_layer(stream_).close();
}

} // namespace tellurix::workbench
