#include "display/browser/network/UploadConnection.h"

#include "display/browser/network/guarded.h"

#include <boost/beast/http/read.hpp>
#include <boost/beast/http/write.hpp>

#include <utility>

namespace tellurix::browser {

namespace beast = boost::beast;
namespace http = beast::http;

UploadConnection::UploadConnection(beast::tcp_stream stream, beast::flat_buffer buffer, Header&& header,
                                   Target target, const Site& site, Places::Place place,
                                   std::chrono::milliseconds patience)
    : stream_(std::move(stream)),
      buffer_(std::move(buffer)),
      target_(std::move(target)),
      parser_(std::move(header)),
      site_(site),
      place_(std::move(place)),
      patience_(patience) {
    parser_.body_limit(SessionFiles::mostBytes);
}

template <typename Action>
auto UploadConnection::handler(Action action) {
    return guarded(std::move(action), [self = shared_from_this()] { self->close(); });
}

void UploadConnection::start() {
    // The page knows how much it may send; whoever sends more is answered without being read.
    if (const auto length = parser_.content_length(); length && *length > SessionFiles::mostBytes) {
        answer(413);
        return;
    }
    Code error;
    parser_.get().body().open(target_.upload->path().c_str(), beast::file_mode::write, error);
    if (error) {
        answer(507);
        return;
    }
    read();
}

void UploadConnection::read() {
    if (parser_.is_done()) {
        finish({});
        return;
    }
    stream_.expires_after(patience_);
    http::async_read_some(stream_, buffer_, parser_,
                          handler([self = shared_from_this()](Code error, std::size_t) {
                              if (error)
                                  self->finish(error);
                              else
                                  self->read();
                          }));
}

void UploadConnection::finish(const Code& error) {
    if (error == http::error::body_limit) {
        answer(413);
    } else if (error) {
        answer(507); // no room for it; a page that has gone will not hear it
    } else {
        parser_.get().body().close();
        target_.upload->finish();
        answer(204);
    }
}

void UploadConnection::answer(int status) {
    const SiteReply reply = site_.protectedReply(status);
    using Response = http::response<http::empty_body>;
    const auto response = std::make_shared<Response>(static_cast<http::status>(reply.status), 11U);
    for (const auto& [name, value] : reply.headers)
        response->set(name, value);
    response->keep_alive(false);
    response->prepare_payload();
    stream_.expires_after(patience_);
    http::async_write(stream_, *response, handler([self = shared_from_this(), response](Code, std::size_t) {
                          beast::error_code ignored;
                          self->stream_.socket().shutdown(boost::asio::ip::tcp::socket::shutdown_send,
                                                          ignored);
                      }));
}

void UploadConnection::close() {
    stream_.close();
}

} // namespace tellurix::browser
