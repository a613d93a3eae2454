#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::base {

/// UTF-8 texts by their characters (code points). Invalid bytes count as one character each.

std::u32string decodeUtf8(std::string_view text);
std::string encodeUtf8(std::u32string_view characters);
std::string encodeUtf8(char32_t character);

/// Upper-case letters, those of the western European languages included: "grün" becomes "GRÜN".
/// "ß" stays, as it has no single upper-case letter in the trade's data.
std::string toUpper(std::string_view text);
char32_t toUpper(char32_t character);

/// Without blanks, tabs and line ends at both ends.
std::string_view trim(std::string_view text);

/// Without the mark that some editors write before a text.
std::string_view withoutByteOrderMark(std::string_view text);

/// Every `from` replaced by `to`.
std::string replaceAll(std::string text, std::string_view from, std::string_view to);

/// The texts one behind the other, with something between them.
std::string joined(const std::vector<std::string>& texts, std::string_view between);

/// Puts the values in the places of the "{}" in a text, from left to right.
std::string filled(std::string text, const std::vector<std::string>& values);

} // namespace tellurix::base
