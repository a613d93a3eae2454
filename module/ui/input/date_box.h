#pragma once

#include "module/ui/controls/TextBox.h"

namespace tellurix::ui {

/// Makes a box a date box: what can be part of a date is typed in it, a date is rewritten as
/// "dd.mm.yyyy" on leaving, and a text that is none keeps the focus, with the text still there.
/// @param showInvalid tells the user that the text is no date
void makeDateBox(TextBox& box, std::function<void()> showInvalid);

} // namespace tellurix::ui
