#include "display/browser/session/PageSession.h"

#include "display/browser/network/guarded.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <utility>

namespace tellurix::browser {

PageSession::PageSession(std::string id, Limits limits) : id_(std::move(id)), limits_(limits) {}

void PageSession::start(const Program& program, std::function<void()> onFinished) {
    thread_.start(limits_.stackBytes, [this, program, onFinished = std::move(onFinished)] {
        run(program);
        guarded([this] { sayGoodbye(); })();
        guarded(onFinished)();
    });
}

void PageSession::run(const Program& program) {
    std::string reason = "closed";
    try {
        BrowserDisplay display{*this};
        program(display);
    } catch (const SessionEnded&) {
        reason.clear();
    } catch (const std::exception& error) {
        std::cerr << "Session failed: " << error.what() << '\n';
        reason = "failed";
    }
    if (!reason.empty()) end(reason);
}

void PageSession::sayGoodbye() {
    const std::lock_guard lock{mutex_};
    finished_ = true;
    if (!link_) return;
    link_->send(nlohmann::json{{"ended", ending_.value_or("closed")}}.dump());
    link_->close();
    link_.reset();
}

bool PageSession::finished() const {
    const std::lock_guard lock{mutex_};
    return finished_;
}

std::optional<PageSession::Clock::time_point> PageSession::leftUntouchedAt() const {
    const std::lock_guard lock{mutex_};
    if (link_ || connection_ == 0 || touched_) return std::nullopt;
    return detachedAt_;
}

bool PageSession::attach(std::shared_ptr<PageLink> link, bool takeOver) {
    const std::lock_guard lock{mutex_};
    if (finished_ || ending_ || (link_ && !takeOver)) return false;
    if (!link_ && connection_ > 0 && Clock::now() >= detachedAt_ + limits_.grace) return false;
    link->send(
        nlohmann::json{{"session", id_}, {"received", received_}, {"messageBytes", limits_.messageBytes}}
            .dump());
    if (link_) {
        link_->send(nlohmann::json{{"ended", "takenOver"}}.dump());
        link_->close();
    }
    // Whoever asked for whole drawings before is gone.
    std::erase_if(queue_,
                  [](const PageMessage& message) { return message.kind == PageMessage::Kind::redraw; });
    link_ = std::move(link);
    ++connection_;
    changed_.notify_all();
    return true;
}

void PageSession::detach(const PageLink& link) {
    const std::lock_guard lock{mutex_};
    if (link_.get() != &link) return;
    link_.reset();
    detachedAt_ = Clock::now();
    changed_.notify_all();
}

bool PageSession::post(const PageLink& link, PageMessage message) {
    const std::lock_guard lock{mutex_};
    if (link_.get() != &link || message.number <= received_) return true;
    if (queue_.size() >= limits_.queuedMessages) return false;
    received_ = message.number;
    touched_ = touched_ || message.kind != PageMessage::Kind::redraw;
    message.connection = connection_;
    queue_.push_back(std::move(message));
    changed_.notify_all();
    return true;
}

void PageSession::end(std::string reason) {
    const std::lock_guard lock{mutex_};
    if (!ending_) ending_ = std::move(reason);
    changed_.notify_all();
}

PageMessage PageSession::next() {
    std::unique_lock lock{mutex_};
    for (;;) {
        if (ending_) throw SessionEnded{};
        if (!queue_.empty()) {
            PageMessage message = std::move(queue_.front());
            queue_.pop_front();
            return message;
        }
        if (link_) {
            changed_.wait(lock);
            continue;
        }
        const auto deadline = detachedAt_ + limits_.grace;
        if (Clock::now() >= deadline) {
            ending_ = "abandoned";
        } else {
            changed_.wait_until(lock, deadline);
        }
    }
}

bool PageSession::waiting() {
    const std::lock_guard lock{mutex_};
    return ending_ || !queue_.empty();
}

void PageSession::send(std::string drawing) {
    const std::lock_guard lock{mutex_};
    if (link_ && drawnConnection_ == connection_) link_->send(std::move(drawing));
}

void PageSession::sendComplete(std::string drawing, const PageMessage& redraw) {
    const std::lock_guard lock{mutex_};
    // A page that has come since then will ask for itself.
    if (redraw.connection != connection_) return;
    drawnConnection_ = connection_;
    if (link_) link_->send(std::move(drawing));
}

} // namespace tellurix::browser
