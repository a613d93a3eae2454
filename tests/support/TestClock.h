#pragma once

#include "common/Clock.h"

namespace tellurix::tests {

/// The clock of all tests: it is always 9 March 2026, 8:00.
inline const common::Clock& testClock() {
    struct Standing final : common::Clock {
        common::DateTime now() const override {
            using namespace std::chrono_literals;
            return common::startOf(common::Date{2026y / 3 / 9}) + 8h;
        }
    };
    static const Standing clock;
    return clock;
}

} // namespace tellurix::tests
