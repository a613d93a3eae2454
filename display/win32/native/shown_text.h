#pragma once

#include <string>
#include <string_view>

namespace tellurix::windows {

/// Texts of boxes as native edit controls have them: in UTF-16, with "\r\n" for a line end in boxes
/// of several lines and without line ends in all others. Form's texts are UTF-8 with "\n", and their
/// positions count characters.

std::wstring shownText(std::string_view text, bool severalLines);

/// How many units of what is shown the first `characters` characters of a text take.
int shownUnits(std::string_view text, int characters, bool severalLines);

/// How many characters of a text the first `units` units of what is shown are.
int charactersBefore(std::string_view text, int units, bool severalLines);

/// What a user's editing made, as a text of the form. Control characters, which clipboards bring
/// along, become blanks.
std::string editedText(std::wstring_view shown, bool severalLines);

} // namespace tellurix::windows
