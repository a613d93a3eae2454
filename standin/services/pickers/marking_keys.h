#pragma once

#include "module/ui/controls/Grid.h"

#include <functional>

namespace tellurix::standin {

/// Connects a list whose rows the user marks: Space marks the current one or takes its mark away.
/// @param done what Enter does; may be empty
void connectMarking(ui::Grid& list, std::function<void()> toggle, std::function<void()> done = {});

} // namespace tellurix::standin
