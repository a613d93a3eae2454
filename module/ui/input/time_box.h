#pragma once

#include "module/ui/controls/TextBox.h"

#include <optional>
#include <string>
#include <string_view>

namespace tellurix::ui {

/// A time of day as a user types it, in the form "hh:mm": "7:5" is "07:05". Blanks around it are ignored.
/// @return nothing for a text that is none, or none between 00:00 and 23:59
std::optional<std::string> timeText(std::string_view typed);

/// Makes a box a time box: what can be part of a time is typed in it, a time is rewritten as "hh:mm" on
/// leaving, and a text that is none keeps the focus, with the text still there. It may be empty.
/// @param showInvalid tells the user that the text is no time
void makeTimeBox(TextBox& box, std::function<void()> showInvalid);

} // namespace tellurix::ui
