#pragma once

#include "display/win32/controls/ControlView.h"

#include <memory>

namespace tellurix::windows {

/// The view of a control, by its kind.
std::unique_ptr<ControlView> makeView(ViewHost& host, ui::Control& control);

} // namespace tellurix::windows
