#include "module/ui/StatusLine.h"

#include <utility>

namespace tellurix::ui {

void StatusLine::say(std::string text) {
    say(std::move(text), {}, {});
}

void StatusLine::say(std::string text, std::string action, std::function<void()> act) {
    text_ = std::move(text);
    action_ = std::move(action);
    act_ = std::move(act);
    ++said_;
    dirty_ = true;
}

void StatusLine::keep(std::string standing) {
    standing_ = std::move(standing);
    dirty_ = true;
}

void StatusLine::act() {
    if (!act_) return;
    const int offer = said_;
    // What it says takes the function's place while it still runs.
    const std::function<void()> running = act_;
    running();
    if (said_ == offer) clear();
}

} // namespace tellurix::ui
