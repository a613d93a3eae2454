#pragma once

#include "module/ui/controls/TextBox.h"

#include <string>

namespace tellurix::parts {

/// What a box is called: by its label, or else by the frame that it stands in.
std::string nameOf(const ui::TextBox& box);

/// What the user typed into a box, on its way into a statement (see `StatementText`). A text that would
/// break out of its place is refused here, where it is known which box it stands in.

/// The text for a place where quotes are not doubled.
/// @throws ui::RefusedInput when a quote in it would end that place
std::string typedText(ui::TextBox& box);
/// The text for a list of codes, each of which is quoted once more.
/// @throws ui::RefusedInput when there is any quote in it
std::string typedCodes(ui::TextBox& box);
/// The number with a decimal point.
/// @throws ui::RefusedInput when it is none
std::string typedNumber(ui::TextBox& box);

} // namespace tellurix::parts
