#include "display/browser/session/PageSessions.h"

#include "display/browser/network/secrets.h"

#include <algorithm>
#include <iterator>

namespace tellurix::browser {

PageSessions::PageSessions(PageSession::Program program, PageSession::Limits limits, std::size_t atMost)
    : program_(std::move(program)), limits_(limits), atMost_(atMost) {}

PageSessions::~PageSessions() {
    stop();
}

std::shared_ptr<PageSession> PageSessions::find(const std::string& id) {
    const std::lock_guard lock{mutex_};
    const auto found = sessions_.find(id);
    return found == sessions_.end() ? nullptr : found->second;
}

std::shared_ptr<PageSession> PageSessions::create() {
    sweep();
    const std::lock_guard lock{mutex_};
    if (sessions_.size() >= atMost_) makeRoom();
    if (stopped_ || sessions_.size() >= atMost_) return nullptr;
    auto session = std::make_shared<PageSession>(randomKey(), limits_);
    session->start(program_, [this] {
        if (onFinished) onFinished();
    });
    sessions_.emplace(session->id(), session);
    return session;
}

void PageSessions::makeRoom() {
    auto longest = sessions_.end();
    std::optional<std::chrono::steady_clock::time_point> since;
    for (auto at = sessions_.begin(); at != sessions_.end(); ++at) {
        const auto left = at->second->leftUntouchedAt();
        if (!left || (since && *left >= *since)) continue;
        longest = at;
        since = left;
    }
    if (longest == sessions_.end()) return;
    longest->second->end("abandoned");
    sentAway_.push_back(std::move(longest->second));
    sessions_.erase(longest);
}

std::size_t PageSessions::count() {
    sweep();
    const std::lock_guard lock{mutex_};
    return sessions_.size();
}

void PageSessions::sweep() {
    std::vector<std::shared_ptr<PageSession>> gone;
    {
        const std::lock_guard lock{mutex_};
        for (auto at = sessions_.begin(); at != sessions_.end();) {
            if (!at->second->finished()) {
                ++at;
                continue;
            }
            gone.push_back(at->second);
            at = sessions_.erase(at);
        }
        const auto done = [](const auto& session) { return session->finished(); };
        std::ranges::copy_if(sentAway_, std::back_inserter(gone), done);
        std::erase_if(sentAway_, done);
    }
    for (const auto& session : gone)
        session->join();
}

void PageSessions::stop() {
    std::vector<std::shared_ptr<PageSession>> all;
    {
        const std::lock_guard lock{mutex_};
        stopped_ = true;
        all.swap(sentAway_);
        for (auto& [id, session] : sessions_)
            all.push_back(std::move(session));
        sessions_.clear();
    }
    for (const auto& session : all)
        session->end("stopped");
    for (const auto& session : all)
        session->join();
}

} // namespace tellurix::browser
