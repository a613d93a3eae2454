#pragma once

#include "display/browser/network/Places.h"
#include "display/browser/network/Site.h"
#include "display/browser/network/SocketConnection.h"
#include "display/browser/network/UploadConnection.h"
#include "display/browser/session/PageSessions.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include <chrono>
#include <memory>
#include <optional>

namespace tellurix::browser {

/// One browser connection as long as it asks for files; the one that asks for the page's
/// connection goes on as a SocketConnection. Lives as long as one of its operations is under way.
class HttpConnection final : public std::enable_shared_from_this<HttpConnection> {
public:
    struct Limits {
        std::chrono::milliseconds strangersPatience; ///< for each request and answer until the key was shown
        SocketConnection::Limits known;              ///< from then on
    };

    HttpConnection(boost::asio::ip::tcp::socket socket, const Site& site, PageSessions& sessions,
                   Places& places, Limits limits);

    /// Waits for the first request.
    void start();

private:
    using Response = boost::beast::http::response<boost::beast::http::string_body>;

    /// Makes a handler that closes this connection when it fails.
    template <typename Action>
    auto handler(Action action);
    std::chrono::milliseconds patience() const;
    void read();
    void headerRead();
    void handle();
    /// The file that the request is going to send, if it may.
    UploadConnection::Target uploadOf(const SiteRequest& asked);
    /// Whether the connection has or gets a place among those that have shown the key.
    bool getsPlace(const SiteRequest& asked);
    SiteReply answerTo(const SiteRequest& asked);
    void write(Response response);
    void close();

    boost::beast::tcp_stream stream_;
    boost::beast::flat_buffer buffer_;
    std::optional<boost::beast::http::request_parser<boost::beast::http::string_body>> parser_;
    const Site& site_;
    PageSessions& sessions_;
    Places& places_;
    const Limits limits_;
    Places::Place place_;
    bool known_ = false; ///< it has shown the key
};

} // namespace tellurix::browser
