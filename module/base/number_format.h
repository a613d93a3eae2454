#pragma once

#include "module/base/Decimal.h"
#include "module/base/Locale.h"

#include <optional>
#include <string>
#include <string_view>

namespace tellurix::base {

/// Shows a number through a mask of the screens: "0.00", "##0.00", "#########0.00", "##,##0",
/// "##,###", "0000", "-#######0.00".
///
/// In a mask "." is the place of the decimal character and "," asks for grouping by thousands,
/// whatever the locale; "0" is a digit that is always shown, "#" one that is shown when needed. A
/// leading "-" only says that negative numbers are typed there. Rounds half away from zero. Digits
/// beyond the mask's places are shown, never cut. With "##,###" zero is the empty text.
/// @throws std::invalid_argument when the mask is none; the other functions with a mask do the same.
std::string formatNumber(const Decimal& number, std::string_view mask, const Locale& locale);

/// Reads a number as a user types it: the locale's decimal character, grouping characters between
/// thousands, a sign in front, blanks around. "12,5", "-1.250,00", ",5", "5,", "+7". A grouping
/// character anywhere else makes it no number: "12.5" must not silently become 125.
/// @return nothing when the text is no number, or one of more than 18 digits.
std::optional<Decimal> parseNumber(std::string_view text, const Locale& locale);

/// Whether `parseNumber` would read the text.
inline bool isNumeric(std::string_view text, const Locale& locale) {
    return parseNumber(text, locale).has_value();
}

/// A typed text shown through a mask: formatted when it is a number, unchanged when it is not.
std::string reformatNumber(std::string_view text, std::string_view mask, const Locale& locale);

/// Whether `text` can be the beginning of a number that `mask` can show: digits up to the mask's
/// places before and after the decimal character, one decimal character, a leading minus where the
/// mask starts with "-", grouping characters between thousands where the mask groups. The key
/// filter of every number box.
bool fitsNumberMask(std::string_view text, std::string_view mask, const Locale& locale);

/// How many characters the longest text has that fits the mask: every place, and what stands between them.
int longestInMask(std::string_view mask);

} // namespace tellurix::base
