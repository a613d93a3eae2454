#pragma once

#include "web/Sessions.h"
#include "web/Site.h"
#include "web/SocketConnection.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include <memory>
#include <optional>

namespace tellurix::workbench {

/// One browser connection as long as it asks for files; the one that asks for the page's
/// connection goes on as a SocketConnection. Lives as long as one of its operations is under way.
class HttpConnection final : public std::enable_shared_from_this<HttpConnection> {
public:
    /// @param place held as long as the connection lives, so that the living ones can be counted
    HttpConnection(boost::asio::ip::tcp::socket socket, const Site& site, Sessions& sessions,
                   SocketConnection::Limits limits, std::shared_ptr<void> place);

    void start() { read(); }

private:
    using Response = boost::beast::http::response<boost::beast::http::string_body>;

    void read();
    void handle();
    void write(Response response);

    boost::beast::tcp_stream stream_;
    boost::beast::flat_buffer buffer_;
    std::optional<boost::beast::http::request_parser<boost::beast::http::string_body>> parser_;
    const Site& site_;
    Sessions& sessions_;
    const SocketConnection::Limits limits_;
    std::shared_ptr<void> place_;
};

} // namespace tellurix::workbench
