#include "display/browser/network/HttpConnection.h"

#include "display/browser/network/guarded.h"

#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>
#include <boost/beast/websocket/rfc6455.hpp>

#include <limits>
#include <utility>

namespace tellurix::browser {

namespace beast = boost::beast;
namespace http = beast::http;

namespace {

// Cookies of all other programs on this machine come along.
constexpr std::uint32_t mostHeaderBytes = 64 * 1024;
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

HttpConnection::HttpConnection(boost::asio::ip::tcp::socket socket, const Site& site, PageSessions& sessions,
                               Places& places, Limits limits)
    : stream_(std::move(socket)), site_(site), sessions_(sessions), places_(places), limits_(limits) {}

template <typename Action>
auto HttpConnection::handler(Action action) {
    return guarded(std::move(action), [self = shared_from_this()] { self->close(); });
}

void HttpConnection::start() {
    place_ = places_.forStranger([connection = weak_from_this()] {
        if (const auto self = connection.lock()) self->close();
    });
    read();
}

std::chrono::milliseconds HttpConnection::patience() const {
    return known_ ? limits_.known.patience : limits_.strangersPatience;
}

void HttpConnection::read() {
    parser_.emplace();
    parser_->header_limit(mostHeaderBytes);
    // How long the body may be depends on what it is for.
    parser_->body_limit(std::numeric_limits<std::uint64_t>::max());
    stream_.expires_after(patience());
    http::async_read_header(stream_, buffer_, *parser_,
                            handler([self = shared_from_this()](beast::error_code error, std::size_t) {
                                // A request that is too long, malformed or never finished gets no answer.
                                if (!error) self->headerRead();
                            }));
}

void HttpConnection::headerRead() {
    const SiteRequest asked = neutral(parser_->get());
    if (!getsPlace(asked)) return;
    if (UploadConnection::Target target = uploadOf(asked); target.upload) {
        std::make_shared<UploadConnection>(std::move(stream_), std::move(buffer_), std::move(*parser_),
                                           std::move(target), site_, std::move(place_),
                                           limits_.known.patience)
            ->start();
        return;
    }
    if (const auto length = parser_->content_length(); length && *length > mostBodyBytes) return;
    parser_->body_limit(mostBodyBytes);
    http::async_read(stream_, buffer_, *parser_,
                     handler([self = shared_from_this()](beast::error_code error, std::size_t) {
                         if (!error) self->handle();
                     }));
}

bool HttpConnection::getsPlace(const SiteRequest& asked) {
    if (known_ || !site_.knows(asked)) return true;
    place_ = places_.forKnown();
    known_ = static_cast<bool>(place_);
    return known_;
}

UploadConnection::Target HttpConnection::uploadOf(const SiteRequest& asked) {
    if (asked.method != "POST") return {};
    const auto file = site_.fileAsked(asked);
    auto session = file ? sessions_.find(file->session) : nullptr;
    if (!session) return {};
    auto upload = session->files().begin(file->number);
    return {std::move(session), std::move(upload)};
}

SiteReply HttpConnection::answerTo(const SiteRequest& asked) {
    if (const auto file = site_.fileAsked(asked); file && asked.method == "GET") {
        const auto session = sessions_.find(file->session);
        if (auto offered = session ? session->files().fetch(file->number) : std::nullopt)
            return site_.file(offered->name, std::move(offered->content));
    }
    return site_.answer(asked);
}

void HttpConnection::handle() {
    const SocketConnection::Request request = parser_->release();
    const SiteRequest asked = neutral(request);
    if (site_.admitsConnection(asked)) {
        std::make_shared<SocketConnection>(std::move(stream_), sessions_, limits_.known, std::move(place_))
            ->start(request);
        return;
    }
    const SiteReply reply = answerTo(asked);
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
    stream_.expires_after(patience());
    http::async_write(
        stream_, *kept, handler([self = shared_from_this(), kept](beast::error_code error, std::size_t) {
            if (error) return;
            if (kept->keep_alive()) {
                self->read();
                return;
            }
            beast::error_code ignored;
            self->stream_.socket().shutdown(boost::asio::ip::tcp::socket::shutdown_send, ignored);
        }));
}

void HttpConnection::close() {
    stream_.close();
}

} // namespace tellurix::browser
