#pragma once

#include "module/base/Clock.h"

namespace tellurix::tests {

/// A clock that stands still.
class StandingClock final : public base::Clock {
public:
    explicit StandingClock(base::DateTime moment) : moment_(moment) {}
    base::DateTime now() const override { return moment_; }

private:
    base::DateTime moment_;
};

/// The clock of all tests but those of the embedded database: it is always 9 March 2026, 8:00.
inline const base::Clock& testClock() {
    using namespace std::chrono_literals;
    static const StandingClock clock{base::startOf(2026y / 3 / 9) + 8h};
    return clock;
}

} // namespace tellurix::tests
