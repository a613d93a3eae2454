#pragma once

#include "display/browser/network/Places.h"
#include "display/browser/session/PageSession.h"
#include "display/browser/session/PageSessions.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/websocket/stream.hpp>

#include <chrono>
#include <deque>
#include <memory>
#include <string>

namespace tellurix::browser {

/// The page's connection: hands what the page says to its session, and sends what the session
/// draws. Lives as long as one of its operations is under way, or its session holds it.
///
/// `send` and `close` are for any thread; everything else happens on the network's thread.
class SocketConnection final : public PageLink, public std::enable_shared_from_this<SocketConnection> {
public:
    using Request = boost::beast::http::request<boost::beast::http::string_body>;
    struct Limits {
        std::size_t messageBytes; ///< of one message of the page
        std::size_t
            waitingBytes; ///< of drawings: more than this wait only for a page that has stopped reading
        std::chrono::milliseconds patience; ///< for the greeting
    };

    SocketConnection(boost::beast::tcp_stream stream, PageSessions& sessions, Limits limits,
                     Places::Place place);

    /// Accepts the upgrade that has been asked for.
    void start(const Request& request);

    void send(std::string message) override;
    void close() override;

private:
    using Code = boost::beast::error_code;
    using CloseCode = boost::beast::websocket::close_code;

    /// Makes a handler that ends this connection when it fails.
    template <typename Action>
    auto handler(Action action);
    void accepted();
    void read();
    /// Hands on what has come.
    void received();
    void take(const std::string& message);
    void greet(const Hello& hello);
    void enqueue(std::string message);
    void write();
    void closeWith(CloseCode code);
    /// Ends without the other side's help.
    void drop();
    void leaveSession();

    boost::beast::websocket::stream<boost::beast::tcp_stream> stream_;
    boost::asio::steady_timer greetingTimer_;
    boost::beast::flat_buffer buffer_;
    PageSessions& sessions_;
    const Limits limits_;
    Places::Place place_;
    std::shared_ptr<PageSession> session_;
    std::deque<std::string> outgoing_;
    std::size_t outgoingBytes_ = 0;
    bool writing_ = false;
    bool closing_ = false;
    CloseCode closeCode_ = CloseCode::normal;
};

} // namespace tellurix::browser
