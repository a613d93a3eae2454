#pragma once

#include "module/base/date_time.h"

namespace tellurix::base {

/// Where the screens ask for the time, so that a test can say what day it is.
class Clock {
public:
    virtual ~Clock() = default;
    /// The present moment in local time.
    virtual DateTime now() const = 0;
    Date today() const { return dayOf(now()); }
};

} // namespace tellurix::base
