#include "web/HttpConnection.h"

#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <boost/beast/websocket/rfc6455.hpp>

#include <iostream>
#include <utility>

namespace tellurix::workbench {

namespace beast = boost::beast;
namespace http = beast::http;

namespace {

constexpr std::uint32_t mostHeaderBytes = 8 * 1024;
constexpr std::uint64_t mostBodyBytes = 1024;

std::string text(beast::string_view view) {
    return {view.data(), view.size()};
}

/// The value of a header that may stand there once; a repeated one is as good as none.
std::string single(const SocketConnection::Request& request, http::field field) {
    return request.count(field) == 1 ? text(request[field]) : std::string{};
}

SiteRequest neutral(const SocketConnection::Request& request) {
    return {text(request.method_string()), text(request.target()), single(request, http::field::host),
            single(request, http::field::origin), beast::websocket::is_upgrade(request)};
}

} // namespace

HttpConnection::HttpConnection(boost::asio::ip::tcp::socket socket, const Site& site, Sessions& sessions,
                               SocketConnection::Limits limits, std::shared_ptr<void> place)
    : stream_(std::move(socket)),
      site_(site),
      sessions_(sessions),
      limits_(limits),
      place_(std::move(place)) {}

void HttpConnection::read() {
    parser_.emplace();
    parser_->header_limit(mostHeaderBytes);
    parser_->body_limit(mostBodyBytes);
    stream_.expires_after(limits_.patience);
    http::async_read(stream_, buffer_, *parser_,
                     [self = shared_from_this()](beast::error_code error, std::size_t) {
                         // A request that is too long, malformed or never finished gets no answer.
                         if (error) return;
                         try {
                             self->handle();
                         } catch (const std::exception& failure) {
                             std::cerr << "Request failed: " << failure.what() << '\n';
                         }
                     });
}

void HttpConnection::handle() {
    const SocketConnection::Request request = parser_->release();
    const SiteRequest asked = neutral(request);
    if (site_.admitsConnection(asked)) {
        std::make_shared<SocketConnection>(std::move(stream_), sessions_, limits_, std::move(place_))
            ->start(request);
        return;
    }
    const SiteReply reply = site_.answer(asked);
    Response response{static_cast<http::status>(reply.status), request.version()};
    response.set(http::field::content_type, reply.contentType);
    for (const auto& [name, value] : reply.headers)
        response.set(name, value);
    response.keep_alive(request.keep_alive() && reply.status == 200);
    response.content_length(reply.body.size());
    if (request.method() != http::verb::head) response.body() = reply.body;
    write(std::move(response));
}

void HttpConnection::write(Response response) {
    const auto kept = std::make_shared<Response>(std::move(response));
    stream_.expires_after(limits_.patience);
    http::async_write(
        stream_, *kept, [self = shared_from_this(), kept](beast::error_code error, std::size_t) {
            if (error) return;
            if (kept->keep_alive()) {
                self->read();
                return;
            }
            beast::error_code ignored;
            self->stream_.socket().shutdown(boost::asio::ip::tcp::socket::shutdown_send, ignored);
        });
}

} // namespace tellurix::workbench
