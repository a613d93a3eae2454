#include "web/Sessions.h"

#include "web/secrets.h"

#include <vector>

namespace tellurix::workbench {

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
    if (stopped_ || sessions_.size() >= atMost_) return nullptr;
    auto session = std::make_shared<Session>(randomKey(), limits_);
    session->start(program_, [this] {
        if (onFinished) onFinished();
    });
    sessions_.emplace(session->id(), session);
    return session;
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
            gone.push_back(std::move(at->second));
            at = sessions_.erase(at);
        }
    }
    for (const auto& session : gone)
        session->join();
}

void Sessions::stop() {
    std::map<std::string, std::shared_ptr<Session>> all;
    {
        const std::lock_guard lock{mutex_};
        stopped_ = true;
        all.swap(sessions_);
    }
    for (const auto& [id, session] : all)
        session->end("stopped");
    for (const auto& [id, session] : all)
        session->join();
}

} // namespace tellurix::workbench
