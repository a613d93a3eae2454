#pragma once

#include "module/base/Locale.h"
#include "module/ui/controls/TextBox.h"

namespace tellurix::ui {

/// Makes a box a number box: only what the mask can show is typed in it, with the locale's decimal
/// character or the point, and on leaving a number is shown in the mask. A point with three digits
/// behind it was one between thousands and is taken out. Another text stays as it is.
void makeNumberBox(TextBox& box, std::string mask, const base::Locale& locale);

/// Lets only what the mask can show be typed and pasted, as a number box does; leaving the box does nothing.
void takeNumbers(TextBox& box, const std::string& mask, const base::Locale& locale);

/// Lets only digits be typed into a box, as for a person's number.
void makeDigitBox(TextBox& box);

} // namespace tellurix::ui
