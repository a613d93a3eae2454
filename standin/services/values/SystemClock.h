#pragma once

#include "module/base/Clock.h"

namespace tellurix::standin {

/// The time of this machine, in its time zone.
class SystemClock final : public base::Clock {
public:
    base::DateTime now() const override;
};

} // namespace tellurix::standin
