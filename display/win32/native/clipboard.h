#pragma once

#include <windows.h>

#include <string>

namespace tellurix::windows {

/// The text on the clipboard, empty for none.
/// @param window on whose behalf it is asked for
std::wstring clipboardText(HWND window);

/// Puts a text on the clipboard in place of what is on it. Another program may hold it: then nothing happens.
void setClipboardText(HWND window, const std::wstring& text);

} // namespace tellurix::windows
