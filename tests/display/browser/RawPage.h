#pragma once

#include <nlohmann/json.hpp>

#include <memory>
#include <string>

namespace tellurix::browser {

/// Plays the page's part over a real connection.
class RawPage {
public:
    /// Connects to "http://HOST/?key=KEY".
    /// @param origin the page's own when empty
    explicit RawPage(const std::string& address, const std::string& origin = {});
    ~RawPage();
    RawPage(const RawPage&) = delete;
    RawPage& operator=(const RawPage&) = delete;

    /// The upgrade was accepted.
    bool connected() const { return connected_; }
    void sendText(const std::string& text, bool binary = false);
    /// Sends an event with the next number and waits for its acknowledgement.
    /// @return the drawings up to then, their "changed" and "opened" of one kind after the other
    nlohmann::json say(nlohmann::json event);
    /// The next message; null when the connection has been closed, or none comes.
    nlohmann::json receive();
    /// Greets. @return the answer
    nlohmann::json sayHello(const std::string& session = {}, bool takeOver = false, bool orNew = true);
    /// Asks for the whole drawing and waits for it: `drawing`.
    void redraw();
    /// Both, one after the other.
    nlohmann::json greet(const std::string& session = {}, bool takeOver = false, bool orNew = true);
    /// After the other side's end: why.
    int closeCode() const;
    /// Leaves without a word.
    void vanish();

    nlohmann::json drawing; ///< the last complete one
    std::string session;
    std::uint64_t number = 0;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
    bool connected_ = false;
};

struct PlainReply {
    int status = 0; ///< 0 when the connection was closed without an answer
    std::string headers;
    std::string body;
};
/// Sends bytes to the server and reads until it closes the connection or the answer is complete.
PlainReply request(std::uint16_t port, const std::string& bytes);

} // namespace tellurix::browser
