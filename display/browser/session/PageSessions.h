#pragma once

#include "display/browser/session/PageSession.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace tellurix::browser {

/// All sessions of the workbench, by their ids. To be called from any thread.
class PageSessions {
public:
    PageSessions(PageSession::Program program, PageSession::Limits limits, std::size_t atMost);
    /// Ends and joins all.
    ~PageSessions();
    PageSessions(const PageSessions&) = delete;
    PageSessions& operator=(const PageSessions&) = delete;

    /// The session of that id, or null.
    std::shared_ptr<PageSession> find(const std::string& id);
    /// Starts a new one, or returns null when there are as many as allowed. Before that, a session
    /// whose page went away without having done anything gives its place.
    /// @throws std::exception when the system has no means for another one
    std::shared_ptr<PageSession> create();
    /// How many are at work.
    std::size_t count();
    std::size_t atMost() const { return atMost_; }
    /// Forgets the sessions that have come to their end, and frees their threads.
    void sweep();
    /// Ends all sessions, waits until they are done, and starts no more.
    void stop();
    /// Called by a session's thread when it has come to its end; it may cause a `sweep`.
    std::function<void()> onFinished;

private:
    /// Sends away the session that has been left longest of those in which nothing was done.
    void makeRoom();

    const PageSession::Program program_;
    const PageSession::Limits limits_;
    const std::size_t atMost_;
    std::mutex mutex_;
    std::map<std::string, std::shared_ptr<PageSession>> sessions_;
    std::vector<std::shared_ptr<PageSession>> sentAway_; ///< on their way to their end
    bool stopped_ = false;
};

} // namespace tellurix::browser
