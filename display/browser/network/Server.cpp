#include "display/browser/network/Server.h"

#include "display/browser/network/HttpConnection.h"
#include "display/browser/network/Places.h"
#include "display/browser/network/Site.h"
#include "display/browser/network/guarded.h"
#include "display/browser/network/secrets.h"
#include "display/browser/session/PageSessions.h"
#include "display/browser/session/SessionFolder.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include <stdexcept>
#include <thread>

namespace tellurix::browser {

namespace net = boost::asio;
using tcp = net::ip::tcp;

namespace {

/// The browser opens a few connections for the files of a page beside its lasting one.
constexpr std::size_t connectionsBesideSessions = 64;
constexpr std::size_t mostStrangers = 64;
constexpr std::size_t mostQueuedMessages = 256;
/// Until it is worth trying again to accept: until then somebody may have left.
constexpr std::chrono::milliseconds pauseAfterFailure{200};

tcp::acceptor listeningAt(net::io_context& context, std::uint16_t port) {
    try {
        return {context, tcp::endpoint{net::ip::address_v4::loopback(), port}};
    } catch (const boost::system::system_error& error) {
        throw std::runtime_error{"port " + std::to_string(port) +
                                 " of 127.0.0.1 cannot be used: " + error.code().message()};
    }
}

} // namespace

/// The network's thread and what it works on.
struct Server::Network {
    Network(Program program, const ServerOptions& given)
        : options(given),
          places(given.sessions + connectionsBesideSessions, mostStrangers),
          acceptor(listeningAt(context, given.port)),
          site(acceptor.local_endpoint().port(), randomKey()),
          sessions(std::move(program),
                   {given.grace, given.stackBytes, mostQueuedMessages, given.messageBytes}, given.sessions) {
        sessions.onFinished = [this] { net::post(context, guarded([this] { sessions.sweep(); })); };
        thread = std::thread{[this] { run(); }};
    }

    void run() {
        // What the library itself throws may have cost it the wait for the next connection.
        for (bool finished = false; !finished;)
            guarded(
                [&] {
                    startAccepting();
                    context.run();
                    finished = true;
                },
                [] { std::this_thread::sleep_for(pauseAfterFailure); })();
    }

    void startAccepting() {
        boost::system::error_code ignored;
        acceptor.cancel(ignored);
        pause.cancel();
        if (acceptor.is_open()) accept();
    }

    void accept() {
        acceptor.async_accept([this](boost::system::error_code error, tcp::socket socket) {
            if (error == net::error::operation_aborted) return;
            // No file is left to open a connection with: accepting would fail over and over at once.
            if (error) return acceptLater();
            guarded([&] { serve(std::move(socket)); })();
            accept();
        });
    }

    void acceptLater() {
        pause.expires_after(pauseAfterFailure);
        pause.async_wait([this](boost::system::error_code error) {
            if (!error) accept();
        });
    }

    void serve(tcp::socket socket) {
        // An answer goes out at once, also behind another one that the browser has not confirmed yet.
        boost::system::error_code ignored;
        socket.set_option(tcp::no_delay{true}, ignored);
        std::make_shared<HttpConnection>(
            std::move(socket), site, sessions, places,
            HttpConnection::Limits{options.strangersPatience,
                                   {options.messageBytes, options.waitingBytes, options.patience}})
            ->start();
    }

    void stop() {
        if (!thread.joinable()) return;
        net::post(context, guarded([this] {
                      acceptor.close();
                      pause.cancel();
                  }));
        sessions.stop();
        // The last messages of the sessions are still on their way; a page that does not answer the
        // end of its connection is not waited for.
        const auto finish = [this] { context.stop(); };
        net::post(context, guarded(
                               [this, finish] {
                                   finishBy.expires_after(std::chrono::milliseconds{300});
                                   finishBy.async_wait([finish](boost::system::error_code) { finish(); });
                               },
                               finish));
        thread.join();
    }

    const ServerOptions options;
    Places places;
    net::io_context context{1};
    /// `stop` ends the run, and not that the library has lost count of its work by an exception.
    net::executor_work_guard<net::io_context::executor_type> running{context.get_executor()};
    tcp::acceptor acceptor;
    net::steady_timer pause{context};
    net::steady_timer finishBy{context};
    Site site;
    PageSessions sessions;
    std::thread thread;
};

Server::Server(Program program, ServerOptions options)
    : network_(std::make_unique<Network>(std::move(program), options)) {
    SessionFolder::removeAbandoned();
}

Server::~Server() {
    stop();
}

std::uint16_t Server::port() const {
    return network_->acceptor.local_endpoint().port();
}

std::string Server::address() const {
    return network_->site.address();
}

std::size_t Server::sessionCount() {
    return network_->sessions.count();
}

void Server::stop() {
    network_->stop();
}

} // namespace tellurix::browser
