#pragma once

#include "display/browser/session/BrowserDisplay.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace tellurix::browser {

struct ServerOptions {
    std::uint16_t port = 0; ///< 0 takes a free one
    std::size_t sessions = 256;
    /// How long a session waits for a browser that went away.
    std::chrono::milliseconds grace = std::chrono::minutes{2};
    /// For each session's thread; the sanitizers' builds need more.
    std::size_t stackBytes = defaultStackBytes;
    /// How long a connection may take for its request and for its greeting,
    std::chrono::milliseconds patience = std::chrono::seconds{15};
    /// and before it has shown the key.
    std::chrono::milliseconds strangersPatience = std::chrono::seconds{3};
    /// The longest message of a page; it is told, and sends none that is longer.
    std::size_t messageBytes = 256UL * 1024;
    /// Of drawings that the page has not taken yet: with more than this it counts as gone.
    std::size_t waitingBytes = 32UL * 1024 * 1024;

#if defined(__SANITIZE_ADDRESS__)
    static constexpr std::size_t defaultStackBytes = 8UL * 1024 * 1024;
#else
    static constexpr std::size_t defaultStackBytes = 1024UL * 1024;
#endif
};

/// Serves the screens to browsers on this machine: the page, and one session with a thread of its
/// own for each tab. Only who knows the address with its key is answered.
class Server {
public:
    /// What a session runs: shows its first screen and returns when the user is done. It runs on
    /// many threads at once and may leave by SessionEnded.
    using Program = std::function<void(BrowserDisplay&)>;

    /// Listens from here on.
    /// @throws std::exception when the port cannot be had; the message names it
    explicit Server(Program program, ServerOptions options = {});
    /// Stops.
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    std::uint16_t port() const;
    /// The address for the user, with the key.
    std::string address() const;
    std::size_t sessionCount();

    /// Ends all sessions without asking them, and all connections. Waits until they are gone.
    void stop();

private:
    struct Network;
    std::unique_ptr<Network> network_;
};

} // namespace tellurix::browser
