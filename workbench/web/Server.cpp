#include "web/Server.h"

#include "web/HttpConnection.h"
#include "web/Sessions.h"
#include "web/Site.h"
#include "web/secrets.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>

#include <atomic>
#include <iostream>
#include <optional>
#include <thread>

namespace tellurix::workbench {

namespace net = boost::asio;
using tcp = net::ip::tcp;

namespace {

/// The browser opens a few connections for the files of a page beside its lasting one.
constexpr std::size_t connectionsBesideSessions = 64;
constexpr std::size_t mostQueuedMessages = 256;

} // namespace

/// The network's thread and what it works on.
struct Server::Network {
    Network(Program program, const ServerOptions& given)
        : options(given),
          acceptor(context, tcp::endpoint{net::ip::address_v4::loopback(), given.port}),
          site(acceptor.local_endpoint().port(), randomKey()),
          sessions(std::move(program), {given.grace, given.stackBytes, mostQueuedMessages}, given.sessions) {
        sessions.onFinished = [this] { net::post(context, [this] { sessions.sweep(); }); };
        accept();
        thread = std::thread{[this] { context.run(); }};
    }

    void accept() {
        acceptor.async_accept([this](boost::system::error_code error, tcp::socket socket) {
            if (error == net::error::operation_aborted) return;
            if (!error) serve(std::move(socket));
            accept();
        });
    }

    void serve(tcp::socket socket) {
        // One too many is closed at once: it goes out of scope.
        if (connections >= options.sessions + connectionsBesideSessions) return;
        // An answer goes out at once, also behind another one that the browser has not confirmed yet.
        boost::system::error_code ignored;
        socket.set_option(tcp::no_delay{true}, ignored);
        try {
            ++connections;
            const std::shared_ptr<void> place{nullptr, [this](void*) { --connections; }};
            std::make_shared<HttpConnection>(std::move(socket), site, sessions,
                                             SocketConnection::Limits{options.messageBytes, options.patience},
                                             place)
                ->start();
        } catch (const std::exception& failure) {
            std::cerr << "Connection refused: " << failure.what() << '\n';
        }
    }

    void stop() {
        if (!thread.joinable()) return;
        net::post(context, [this] { acceptor.close(); });
        sessions.stop();
        // The last messages of the sessions are still on their way; a page that does not answer the
        // end of its connection is not waited for.
        net::post(context, [this] { finishBy.expires_after(std::chrono::milliseconds{300}); });
        net::post(context,
                  [this] { finishBy.async_wait([this](boost::system::error_code) { context.stop(); }); });
        thread.join();
    }

    const ServerOptions options;
    std::atomic<std::size_t> connections = 0;
    net::io_context context{1};
    tcp::acceptor acceptor;
    net::steady_timer finishBy{context};
    Site site;
    Sessions sessions;
    std::thread thread;
};

Server::Server(Program program, ServerOptions options)
    : network_(std::make_unique<Network>(std::move(program), options)) {}

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

} // namespace tellurix::workbench
