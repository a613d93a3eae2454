#pragma once

#include "display/browser/network/Places.h"
#include "display/browser/network/Site.h"
#include "display/browser/session/PageSession.h"

#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/file_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include <chrono>
#include <memory>

namespace tellurix::browser {

/// A connection over which the page sends a file of the user's, from the header of its request to the
/// answer. Lives as long as one of its operations is under way.
class UploadConnection final : public std::enable_shared_from_this<UploadConnection> {
public:
    using Header = boost::beast::http::request_parser<boost::beast::http::string_body>;

    struct Target {
        std::shared_ptr<PageSession> session;
        std::unique_ptr<SessionFiles::Upload> upload;
    };

    /// @param header of the request, its body still to come
    /// @param patience for each piece of it
    UploadConnection(boost::beast::tcp_stream stream, boost::beast::flat_buffer buffer, Header&& header,
                     Target target, const Site& site, Places::Place place,
                     std::chrono::milliseconds patience);

    void start();

private:
    using Body = boost::beast::http::file_body;
    using Code = boost::beast::error_code;

    template <typename Action>
    auto handler(Action action);
    void read();
    /// What has come is whole, or can be none.
    void finish(const Code& error);
    void answer(int status);
    void close();

    boost::beast::tcp_stream stream_;
    boost::beast::flat_buffer buffer_;
    Target target_;
    boost::beast::http::request_parser<Body> parser_;
    const Site& site_;
    Places::Place place_;
    const std::chrono::milliseconds patience_;
    std::shared_ptr<void> response_; ///< while it is sent
};

} // namespace tellurix::browser
