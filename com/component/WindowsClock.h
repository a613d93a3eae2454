#pragma once

#include "module/base/Clock.h"

namespace tellurix::windows {

/// The time that Windows shows the user.
class WindowsClock final : public base::Clock {
public:
    base::DateTime now() const override;
};

} // namespace tellurix::windows
