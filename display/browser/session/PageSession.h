#pragma once

#include "display/browser/session/BrowserDisplay.h"
#include "display/browser/session/PageChannel.h"
#include "display/browser/session/SmallThread.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace tellurix::browser {

/// One connection to a page, as a session sees it. Both calls return at once, from any thread.
class PageLink {
public:
    virtual ~PageLink() = default;
    virtual void send(std::string message) = 0;
    /// Closes the connection after what has been sent.
    virtual void close() = 0;
};

/// One user at work: a thread of its own that runs the program, and a queue of what the page says.
///
/// The session outlives its connection for a while: a page that comes back in time is attached
/// again and finds everything as it was. After that time, or at the workbench's end, the wait that
/// blocks the thread throws SessionEnded.
///
/// `next` and `send…` belong to the session's own thread, everything else to any.
class PageSession final : public PageChannel {
public:
    using Program = std::function<void(BrowserDisplay&)>;
    struct Limits {
        std::chrono::milliseconds grace; ///< how long the session waits for a page that went away
        std::size_t stackBytes;
        std::size_t queuedMessages;
        std::size_t messageBytes; ///< of one message; told to the page
    };

    PageSession(std::string id, Limits limits);

    const std::string& id() const { return id_; }
    /// Starts the thread.
    /// @param onFinished called by it as its last action
    void start(const Program& program, std::function<void()> onFinished);
    void join() { thread_.join(); }
    bool finished() const;
    /// When its page went away without ever having done anything; nothing for every other session.
    std::optional<std::chrono::steady_clock::time_point> leftUntouchedAt() const;

    /// Connects a page. Another one that is still connected is sent away, with `takeOver`, or else
    /// refused its place to.
    /// @return false when the session is over or another page has it
    bool attach(std::shared_ptr<PageLink> link, bool takeOver);
    /// The connection is gone. Nothing happens if another one has taken its place.
    void detach(const PageLink& link);
    /// Queues a message of the page. One that has been queued before is ignored: a page repeats
    /// after a reconnection what it does not know to have arrived.
    /// @return false when more wait than a page of ours would ever send
    bool post(const PageLink& link, PageMessage message);
    /// Ends the session at its next wait.
    /// @param reason told to the page: "stopped", …
    void end(std::string reason);

    SessionFiles& files() override { return files_; }
    PageMessage next() override;
    bool waiting() override;
    void send(std::string drawing) override;
    void sendComplete(std::string drawing, const PageMessage& redraw) override;

private:
    using Clock = std::chrono::steady_clock;

    void run(const Program& program);
    /// Tells the page why there is nothing more to come, and closes the connection.
    void sayGoodbye();

    const std::string id_;
    const Limits limits_;
    SessionFiles files_;
    SmallThread thread_;

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<PageMessage> queue_;
    std::shared_ptr<PageLink> link_;
    std::uint64_t connection_ = 0;      ///< counts the connections
    std::uint64_t drawnConnection_ = 0; ///< the one whose page has got everything
    std::uint64_t received_ = 0;        ///< number of the last message queued
    bool touched_ = false;              ///< the user has done something
    Clock::time_point detachedAt_ = Clock::now();
    std::optional<std::string> ending_;
    bool finished_ = false;
};

} // namespace tellurix::browser
