#include "display/browser/session/Sessions.h"

#include "display/browser/network/secrets.h"

#include <algorithm>
#include <iterator>

namespace tellurix::browser {

Sessions::Sessions(Session::Program program, Session::Limits limits, std::size_t atMost)
    : program_(std::move(program)), limits_(limits), atMost_(atMost) {}

Sessions::~Sessions() {
    stop();
}

std::shared_ptr<Session> Sessions::find(const std::string& id) {
    const std::lock_guard lock{mutex_};
    const auto found = sessions_.find(id);
    return found == sessions_.end() ? nullptr : found->second;
}

std::shared_ptr<Session> Sessions::create() {
    sweep();
    const std::lock_guard lock{mutex_};
    if (sessions_.size() >= atMost_) makeRoom();
    if (stopped_ || sessions_.size() >= atMost_) return nullptr;
    auto session = std::make_shared<Session>(randomKey(), limits_);
    session->start(program_, [this] {
        if (onFinished) onFinished();
    });
    sessions_.emplace(session->id(), session);
    return session;
}

void Sessions::makeRoom() {
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

std::size_t Sessions::count() {
    sweep();
    const std::lock_guard lock{mutex_};
    return sessions_.size();
}

void Sessions::sweep() {
    std::vector<std::shared_ptr<Session>> gone;
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

void Sessions::stop() {
    std::vector<std::shared_ptr<Session>> all;
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
