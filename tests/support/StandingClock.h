#pragma once

#include "common/Clock.h"

namespace tellurix::tests {

/// A clock that stands still.
class StandingClock final : public common::Clock {
public:
    explicit StandingClock(common::DateTime moment) : moment_(moment) {}
    common::DateTime now() const override { return moment_; }

private:
    common::DateTime moment_;
};

/// The clock of all tests but those of the embedded database: it is always 9 March 2026, 8:00.
inline const common::Clock& testClock() {
    using namespace std::chrono_literals;
    static const StandingClock clock{common::startOf(2026y / 3 / 9) + 8h};
    return clock;
}

} // namespace tellurix::tests
