#pragma once

#include <string>
#include <string_view>

namespace tellurix::windows {

/// Texts are UTF-8 inside and UTF-16 for Windows. Broken characters become U+FFFD.

std::wstring widen(std::string_view text);
std::string narrow(std::wstring_view text);

} // namespace tellurix::windows
