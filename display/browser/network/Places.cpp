#include "display/browser/network/Places.h"

namespace tellurix::browser {

Places::Place Places::forStranger(std::function<void()> leave) {
    if (strangers_.size() >= mostStrangers_) strangers_.extract(strangers_.begin()).mapped()();
    const std::uint64_t number = ++lastStranger_;
    strangers_.emplace(number, std::move(leave));
    return {this, [this, number](const void*) { strangers_.erase(number); }};
}

Places::Place Places::forKnown() {
    if (known_ >= mostKnown_) return nullptr;
    ++known_;
    return {this, [this](const void*) { --known_; }};
}

} // namespace tellurix::browser
