#include "tests/database/odbc/TcpProxy.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace tellurix::tests {

namespace {

constexpr int pollTime = 20;

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

/// @return false at the connection's end
bool passOn(int from, int to, std::atomic<std::int64_t>& bytes, const std::atomic<bool>& swallowing) {
    std::array<char, 65536> part{};
    const ssize_t count = ::recv(from, part.data(), part.size(), 0);
    if (count <= 0) return false;
    bytes += count;
    if (swallowing) return true;
    for (ssize_t sent = 0; sent < count;) {
        const ssize_t now =
            ::send(to, part.data() + sent, static_cast<std::size_t>(count - sent), MSG_NOSIGNAL);
        if (now <= 0) return false;
        sent += now;
    }
    return true;
}

} // namespace

TcpProxy::TcpProxy(std::uint16_t serverPort) : listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof(address);
    if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(listener_, 64) != 0 ||
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error{"no port for what stands before the server"};
    port_ = ntohs(address.sin_port);
    thread_ = std::thread{accept, listener_, serverPort, counts_};
}

TcpProxy::~TcpProxy() {
    counts_->ended = true;
    thread_.join();
    ::close(listener_);
}

void TcpProxy::cut() {
    ++counts_->generation;
}

void TcpProxy::accept(int listener, std::uint16_t serverPort, const std::shared_ptr<Counts>& counts) {
    std::vector<std::thread> passing;
    while (!counts->ended) {
        pollfd waiting{listener, POLLIN, 0};
        if (::poll(&waiting, 1, pollTime) <= 0) continue;
        const int client = ::accept(listener, nullptr, nullptr);
        if (client < 0) continue;
        passing.emplace_back([client, serverPort, counts] {
            const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in address = loopback(serverPort);
            if (::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0)
                pass(client, server, counts);
            ::close(server);
            ::close(client);
        });
    }
    for (std::thread& thread : passing)
        thread.join();
}

void TcpProxy::pass(int client, int server, const std::shared_ptr<Counts>& counts) {
    const int generation = counts->generation;
    bool serversTurn = false;
    while (!counts->ended && generation == counts->generation) {
        std::array<pollfd, 2> waiting{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
        if (::poll(waiting.data(), waiting.size(), pollTime) <= 0) continue;
        if (waiting[0].revents != 0) {
            if (!serversTurn) ++counts->roundTrips;
            serversTurn = true;
            if (!passOn(client, server, counts->bytes, counts->swallowing)) return;
        }
        if (waiting[1].revents != 0) {
            serversTurn = false;
            if (!passOn(server, client, counts->bytes, counts->swallowing)) return;
        }
    }
}

} // namespace tellurix::tests
