#pragma once

#include "common/Clock.h"

namespace tellurix::workbench {

/// The time of this machine, in its time zone.
class SystemClock final : public common::Clock {
public:
    common::DateTime now() const override;
};

} // namespace tellurix::workbench
