#pragma once

#include "module/base/database.h"
#include "module/ui/controls/TextBox.h"

#include <optional>
#include <string_view>

namespace tellurix::logistics {

/// How the quantities of the logistics screens are shown: whole, "." between thousands, whatever the
/// user's own formats are.
inline constexpr const char* quantityMask = "##,##0";

/// Lets only digits and "." be typed into a box. A pasted number without decimals is taken as it would be
/// typed; nothing of any other text is.
void takeQuantities(ui::TextBox& box);

/// The quantity that a typed text is: a whole number, or NULL for an empty text.
/// @return nothing when it is neither: a "." that does not stand between thousands, or a number beyond the
///         largest that the guarded statements can tell from an empty quantity
std::optional<base::Value> quantityIn(std::string_view typed);

} // namespace tellurix::logistics
