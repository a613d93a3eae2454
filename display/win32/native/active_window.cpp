#include "display/win32/native/active_window.h"

namespace tellurix::windows {

namespace {

/// Windows are told from the topmost down; the first that can be used ends the search.
BOOL CALLBACK takeFirstUsable(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

} // namespace

HWND activeWindow() {
    HWND window = GetActiveWindow();
    if (window == nullptr)
        EnumThreadWindows(GetCurrentThreadId(), takeFirstUsable, reinterpret_cast<LPARAM>(&window));
    return window;
}

} // namespace tellurix::windows
