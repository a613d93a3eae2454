#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <thread>

namespace tellurix::tests {

/// Something between a client and a server on this machine: it counts what passes, and can fail as a network
/// does.
class TcpProxy {
public:
    explicit TcpProxy(std::uint16_t serverPort);
    ~TcpProxy();
    TcpProxy(const TcpProxy&) = delete;
    TcpProxy& operator=(const TcpProxy&) = delete;

    std::uint16_t port() const { return port_; }
    /// How often the client has sent something after the server's last word.
    std::int64_t roundTrips() const { return counts_->roundTrips; }
    std::int64_t bytes() const { return counts_->bytes; }

    /// Ends every connection that there is; new ones are let through.
    void cut();
    /// From now on takes what comes and passes nothing on, on connections that are there and on new ones.
    void swallow() { counts_->swallowing = true; }
    void passAgain() { counts_->swallowing = false; }

private:
    struct Counts {
        std::atomic<std::int64_t> roundTrips{0};
        std::atomic<std::int64_t> bytes{0};
        std::atomic<int> generation{0};
        std::atomic<bool> swallowing{false};
        std::atomic<bool> ended{false};
    };

    static void accept(int listener, std::uint16_t serverPort, const std::shared_ptr<Counts>& counts);
    static void pass(int client, int server, const std::shared_ptr<Counts>& counts);

    std::shared_ptr<Counts> counts_ = std::make_shared<Counts>();
    int listener_ = -1;
    std::uint16_t port_ = 0;
    std::thread thread_;
};

} // namespace tellurix::tests
