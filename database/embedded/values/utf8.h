#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// The character that starts at `index`, which is moved behind it; U+FFFD for broken bytes.
char32_t nextCharacter(std::string_view text, std::size_t& index);

/// The character as which upper and lower case are compared.
char32_t foldCharacter(char32_t character);

void appendCharacter(std::string& text, char32_t character);

/// The length that nvarchar(n) counts: UTF-16 units, of a UTF-8 text.
std::size_t utf16Length(std::string_view text);

/// The longest beginning of at most so many units; a character is never split.
std::string_view utf16Prefix(std::string_view text, std::size_t units);

/// The longest end of at most so many units.
std::string_view utf16Suffix(std::string_view text, std::size_t units);

} // namespace tellurix::embedded
