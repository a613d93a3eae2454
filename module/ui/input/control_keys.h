#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// Makes an item of a list, a page of tabs or a cell of a grid the current one, as the user does, and
/// tells the control's handler when it was another one.
/// @param index item, page or row
void choose(Control& control, int index, int column = 0);

/// What a key does inside the control that has the focus: it takes a character away, moves the current
/// item, page or cell, or steps up and down.
void applyKey(Control& control, Key key);

} // namespace tellurix::ui
