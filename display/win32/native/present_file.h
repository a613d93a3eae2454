#pragma once

#include <windows.h>

#include <string>

namespace tellurix::windows {

/// Puts a file into the user's folder for passing files and opens it with the program that Windows
/// knows for it.
/// @param name without a path
/// @throws std::runtime_error in Windows' words
void openWithItsProgram(HWND owner, const std::string& name, const std::string& content);

} // namespace tellurix::windows
