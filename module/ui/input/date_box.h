#pragma once

#include "module/base/date_time.h"
#include "module/ui/controls/TextBox.h"

#include <functional>

namespace tellurix::ui {

/// Makes a box a date box: what can be part of a date is typed in it, a date is rewritten as
/// "dd.mm.yyyy" on leaving, and a text that is none keeps the focus, with the text still there.
/// @param today for what is typed in short: "15.1.", "h", "+7" (see `base::typedDate`)
/// @param showInvalid tells the user that the text is no date
void makeDateBox(TextBox& box, std::function<base::Date()> today, std::function<void()> showInvalid);

} // namespace tellurix::ui
