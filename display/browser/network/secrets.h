#pragma once

#include <string>
#include <string_view>

namespace tellurix::browser {

/// 128 random bits from the operating system, as 32 hexadecimal digits.
/// @throws std::system_error when the system has none to give
std::string randomKey();

/// Whether two texts are equal, in a time that does not tell how much of them is.
bool equalInConstantTime(std::string_view given, std::string_view expected);

} // namespace tellurix::browser
