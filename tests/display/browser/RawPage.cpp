#include "tests/display/browser/RawPage.h"

#include <boost/asio/connect.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/buffers_to_string.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>

#include <sstream>

namespace tellurix::browser {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;
using tcp = net::ip::tcp;
using nlohmann::json;

namespace {

constexpr std::chrono::seconds patience{20};

tcp::endpoint endpointOf(std::uint16_t port) {
    return {net::ip::address_v4::loopback(), port};
}

} // namespace

struct RawPage::Connection {
    net::io_context context;
    websocket::stream<tcp::socket> stream{context};

    /// Does what has been started. A server that says nothing any more must not keep a test waiting.
    void finish() {
        context.restart();
        context.run_for(patience);
        if (context.stopped()) return;
        beast::error_code ignored;
        stream.next_layer().close(ignored);
        context.run();
    }
};

RawPage::RawPage(const std::string& address, const std::string& origin)
    : connection_(std::make_unique<Connection>()) {
    const std::string host = address.substr(7, address.find('/', 7) - 7);
    const std::string key = address.substr(address.find('=') + 1);
    connection_->stream.next_layer().connect(
        endpointOf(static_cast<std::uint16_t>(std::stoi(host.substr(host.find(':') + 1)))));
    const std::string from = origin.empty() ? "http://" + host : origin;
    connection_->stream.set_option(websocket::stream_base::decorator(
        [from](websocket::request_type& request) { request.set(beast::http::field::origin, from); }));
    const std::string target = "/" + key + "/session";
    connection_->stream.async_handshake(host, target,
                                        [this](beast::error_code error) { connected_ = !error; });
    connection_->finish();
}

RawPage::~RawPage() {
    vanish();
}

void RawPage::sendText(const std::string& text, bool binary) {
    connection_->stream.binary(binary);
    beast::error_code error;
    connection_->stream.write(net::buffer(text), error);
}

json RawPage::receive() {
    beast::flat_buffer buffer;
    beast::error_code failure;
    connection_->stream.async_read(buffer,
                                   [&failure](beast::error_code error, std::size_t) { failure = error; });
    connection_->finish();
    if (failure) return nullptr;
    return json::parse(beast::buffers_to_string(buffer.data()));
}

json RawPage::sayHello(const std::string& known, bool takeOver, bool orNew) {
    sendText(json{{"type", "hello"}, {"session", known}, {"takeOver", takeOver}, {"orNew", orNew}}.dump());
    json greeting = receive();
    if (!greeting.is_object() || !greeting.contains("session")) return greeting;
    session = greeting["session"];
    number = std::max(number, greeting["received"].get<std::uint64_t>());
    return greeting;
}

void RawPage::redraw() {
    sendText(json{{"type", "redraw"}, {"n", ++number}}.dump());
    do {
        drawing = receive();
    } while (drawing.is_object() && !drawing.contains("complete"));
}

json RawPage::greet(const std::string& known, bool takeOver, bool orNew) {
    json greeting = sayHello(known, takeOver, orNew);
    if (greeting.is_object() && greeting.contains("session")) redraw();
    return greeting;
}

json RawPage::say(json event) {
    event["n"] = ++number;
    sendText(event.dump());
    json all = {{"changed", json::array()}, {"opened", json::array()}, {"closed", json::array()}};
    for (;;) {
        json message = receive();
        if (!message.is_object()) return message;
        for (const char* kind : {"changed", "opened", "closed"}) {
            if (message.contains(kind))
                all[kind].insert(all[kind].end(), message[kind].begin(), message[kind].end());
        }
        for (const char* kind : {"box", "focus", "busy", "files", "ended"}) {
            if (message.contains(kind)) all[kind] = message[kind];
        }
        if (message.contains("ended") || (message.contains("ack") && message["ack"] >= number)) return all;
    }
}

int RawPage::closeCode() const {
    return connection_->stream.reason().code;
}

void RawPage::vanish() {
    beast::error_code ignored;
    connection_->stream.next_layer().close(ignored);
}

PlainReply request(std::uint16_t port, const std::string& bytes) {
    net::io_context context;
    tcp::socket socket{context};
    socket.connect(endpointOf(port));
    beast::error_code error;
    net::write(socket, net::buffer(bytes), error);
    beast::flat_buffer buffer;
    beast::http::response<beast::http::string_body> response;
    beast::http::read(socket, buffer, response, error);
    if (error) return {};
    std::ostringstream headers;
    headers << response.base();
    return {static_cast<int>(response.result_int()), headers.str(), response.body()};
}

} // namespace tellurix::browser
