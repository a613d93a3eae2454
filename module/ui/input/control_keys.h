#pragma once

#include "module/ui/controls/Control.h"
#include "module/ui/controls/TextBox.h"

#include <string>

namespace tellurix::ui {

/// Makes an item of a list, a page of tabs or a cell of a grid the current one, as the user does, and
/// tells the control's handler when it was another one.
/// @param index item, page or row
void choose(Control& control, int index, int column = 0);

/// What a key does inside the control that has the focus: it takes a character away, moves the current
/// item or page, or steps up and down. Grids have keys of their own (grid_keys.h).
void applyKey(Control& control, Key key);

/// Whether a key leads through a list or a table.
bool navigates(Key key);
/// The index that a navigation key leads to in a list of `count` entries, or -1 for an empty one.
/// @param page how many entries a page has
int movedIndex(Key key, int current, int count, int page);

/// Types one character in place of the selection, through the box's filter.
/// @return false when the filter, or the length of the box, does not let it in
bool typeCharacter(TextBox& box, char32_t character);
/// Types a text that does not come from keys in place of the selection.
/// @return false when not all of it came in
bool typeText(TextBox& box, const std::string& text);

} // namespace tellurix::ui
