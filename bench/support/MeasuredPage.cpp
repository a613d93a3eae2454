#include "bench/support/MeasuredPage.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/http/field.hpp>
#include <boost/beast/websocket.hpp>

#include <stdexcept>

namespace tellurix::bench {

namespace net = boost::asio;
namespace beast = boost::beast;
namespace websocket = beast::websocket;
using nlohmann::json;

namespace {

std::string textOf(const beast::flat_buffer& buffer) {
    return {static_cast<const char*>(buffer.data().data()), buffer.size()};
}

// The messages are made outside of the coroutines: GCC 12 cannot keep their initializer lists there.

json hello() {
    return {{"type", "hello"}, {"session", ""}, {"orNew", true}};
}

json redraw() {
    return {{"type", "redraw"}};
}

} // namespace

json clicked() {
    return {{"type", "click"}};
}

json focused() {
    return {{"type", "focus"}};
}

json rowChosen(int row) {
    return {{"type", "select"}, {"index", row}, {"column", 0}};
}

json typed(char character) {
    return {{"type", "character"}, {"character", std::string{character}}};
}

json keyPressed(int key) {
    return {{"type", "key"}, {"key", key}};
}

json caretMoved(int to) {
    return {{"type", "selection"}, {"start", to}, {"length", 0}};
}

net::awaitable<void> MeasuredPage::connect(std::uint16_t port, std::string key) {
    const net::ip::tcp::endpoint server{net::ip::address_v4::loopback(), port};
    co_await beast::get_lowest_layer(stream_).async_connect(server, net::use_awaitable);
    // As browsers do: what is typed goes out at once.
    beast::get_lowest_layer(stream_).socket().set_option(net::ip::tcp::no_delay{true});
    const std::string host = "127.0.0.1:" + std::to_string(port);
    stream_.set_option(websocket::stream_base::decorator{[host](websocket::request_type& request) {
        request.set(beast::http::field::origin, "http://" + host);
    }});
    stream_.read_message_max(0);
    co_await stream_.async_handshake(host, "/" + key + "/session", net::use_awaitable);
    stream_.text(true);
    co_await write(hello());
    const json greeting = co_await read();
    number_ = greeting.at("received");
    co_await perform(redraw());
}

net::awaitable<Clock::duration> MeasuredPage::perform(json event) {
    event["n"] = ++number_;
    const Clock::time_point start = Clock::now();
    co_await write(event);
    for (;;) {
        const json drawing = co_await read();
        const Clock::time_point now = Clock::now();
        if (drawing.contains("ended")) throw std::runtime_error{"the session has ended"};
        state_.apply(drawing);
        if (drawing.contains("ack") && drawing["ack"] >= number_) co_return now - start;
    }
}

net::awaitable<Clock::duration> MeasuredPage::perform(std::string form, std::string control, json event) {
    co_return co_await perform(addressed(form, control, std::move(event)));
}

net::awaitable<void> MeasuredPage::tell(std::string form, std::string control, json event) {
    json message = addressed(form, control, std::move(event));
    message["n"] = ++number_;
    co_await write(message);
}

json MeasuredPage::addressed(const std::string& form, const std::string& control, json event) const {
    const PageState::Window& window = state_.top(form);
    event["window"] = window.id;
    if (!control.empty()) event["control"] = window.controls.at(control);
    return event;
}

net::awaitable<void> MeasuredPage::write(const json& message) {
    const std::string text = message.dump();
    co_await stream_.async_write(net::buffer(text), net::use_awaitable);
}

net::awaitable<json> MeasuredPage::read() {
    buffer_.clear();
    co_await stream_.async_read(buffer_, net::use_awaitable);
    co_return json::parse(textOf(buffer_));
}

} // namespace tellurix::bench
