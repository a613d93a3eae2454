#pragma once

#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"

#include <functional>

namespace tellurix::standin {

/// Connects a search box with the list that it narrows: the keys that go up and down in a list move
/// the list's current row while the user goes on typing, and Enter chooses. A list that nothing is found in
/// says so.
void connectSearch(ui::TextBox& search, ui::Grid& list, std::function<void()> choose);

/// What the list says when it is empty: that nothing was found, and for what.
void sayNothingFound(const ui::TextBox& search, ui::Grid& list);

/// Limits a box whose text becomes part of a statement: one that is longer than any name only makes
/// the statement long.
void limitSearch(ui::TextBox& search);

} // namespace tellurix::standin
