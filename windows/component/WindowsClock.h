#pragma once

#include "common/Clock.h"

namespace tellurix::windows {

/// The time that Windows shows the user.
class WindowsClock final : public common::Clock {
public:
    common::DateTime now() const override;
};

} // namespace tellurix::windows
