#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tellurix::windows {

/// The dialog of Windows to choose a file that exists.
/// @param filter "PDF file (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*"
/// @return its path, or nothing when the user cancelled
std::optional<std::string> chooseFile(HWND owner, const std::string& title, const std::string& filter);

} // namespace tellurix::windows
