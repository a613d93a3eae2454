#include "display/browser/network/SocketConnection.h"

#include "display/browser/network/guarded.h"

#include <boost/asio/post.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/websocket/rfc6455.hpp>
#include <nlohmann/json.hpp>

#include <utility>

namespace tellurix::browser {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;

namespace {

std::string ended(const char* reason) {
    return nlohmann::json{{"ended", reason}}.dump();
}

} // namespace

SocketConnection::SocketConnection(beast::tcp_stream stream, PageSessions& sessions, Limits limits,
                                   Places::Place place)
    : stream_(std::move(stream)),
      greetingTimer_(stream_.get_executor()),
      sessions_(sessions),
      limits_(limits),
      place_(std::move(place)) {}

template <typename Action>
auto SocketConnection::handler(Action action) {
    return guarded(std::move(action), [self = shared_from_this()] { self->drop(); });
}

void SocketConnection::start(const Request& request) {
    // From here on the WebSocket has timeouts of its own.
    beast::get_lowest_layer(stream_).expires_never();
    stream_.set_option(websocket::stream_base::timeout{
        .handshake_timeout = limits_.patience,
        .idle_timeout = std::chrono::seconds{30},
        .keep_alive_pings = true,
    });
    stream_.read_message_max(limits_.messageBytes);
    stream_.async_accept(request, handler([self = shared_from_this()](Code error) {
                             if (!error) self->accepted();
                         }));
}

void SocketConnection::accepted() {
    greetingTimer_.expires_after(limits_.patience);
    greetingTimer_.async_wait(handler([self = shared_from_this()](Code cancelled) {
        if (!cancelled && !self->session_) self->drop();
    }));
    read();
}

void SocketConnection::read() {
    stream_.async_read(buffer_, handler([self = shared_from_this()](Code error, std::size_t) {
                           if (error) {
                               self->leaveSession();
                               return;
                           }
                           self->received();
                           self->buffer_.consume(self->buffer_.size());
                           // Once closing, reading on only waits for the other side's answer to that.
                           self->read();
                       }));
}

void SocketConnection::received() {
    if (closing_) return;
    if (!stream_.got_text()) {
        closeWith(CloseCode::unknown_data);
        return;
    }
    try {
        take(beast::buffers_to_string(buffer_.data()));
    } catch (const ProtocolError&) {
        closeWith(CloseCode::bad_payload);
    }
}

void SocketConnection::take(const std::string& message) {
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
    net::post(stream_.get_executor(),
              handler([self = shared_from_this(), message = std::move(message)]() mutable {
                  self->enqueue(std::move(message));
              }));
}

void SocketConnection::close() {
    net::post(stream_.get_executor(),
              handler([self = shared_from_this()] { self->closeWith(CloseCode::normal); }));
}

void SocketConnection::enqueue(std::string message) {
    if (closing_) return;
    // One drawing may be as large as it is: it would be no smaller after a reconnection.
    if (outgoingBytes_ > limits_.waitingBytes) {
        drop();
        return;
    }
    outgoingBytes_ += message.size();
    outgoing_.push_back(std::move(message));
    write();
}

void SocketConnection::write() {
    if (writing_) return;
    if (outgoing_.empty()) {
        if (!closing_) return;
        writing_ = true;
        stream_.async_close(closeCode_, handler([self = shared_from_this()](Code) {}));
        return;
    }
    writing_ = true;
    stream_.text(true);
    stream_.async_write(net::buffer(outgoing_.front()),
                        handler([self = shared_from_this()](Code error, std::size_t) {
                            if (error) return;
                            self->writing_ = false;
                            self->outgoingBytes_ -= self->outgoing_.front().size();
                            self->outgoing_.pop_front();
                            self->write();
                        }));
}

void SocketConnection::closeWith(CloseCode code) {
    if (closing_) return;
    closing_ = true;
    closeCode_ = code;
    write();
}

void SocketConnection::drop() {
    leaveSession();
    beast::get_lowest_layer(stream_).close();
}

void SocketConnection::leaveSession() {
    greetingTimer_.cancel();
    if (session_) session_->detach(*this);
}

} // namespace tellurix::browser
