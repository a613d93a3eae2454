#include "display/win32/WaitingWindows.h"

#include <utility>

namespace tellurix::windows {

namespace {

BOOL CALLBACK collect(HWND window, LPARAM found) {
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

} // namespace

WaitingWindows::WaitingWindows(HWND owner) {
    std::vector<HWND> ofThread;
    EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&ofThread));
    for (HWND window : ofThread)
        if (IsWindowVisible(window)) disable(window);
    // It may belong to another thread.
    if (owner != nullptr) disable(owner);
}

void WaitingWindows::disable(HWND window) {
    // Answers whether it was disabled before.
    if (!EnableWindow(window, FALSE)) windows_.push_back(window);
}

void WaitingWindows::release() {
    for (HWND window : std::exchange(windows_, {}))
        if (IsWindow(window)) EnableWindow(window, TRUE);
}

} // namespace tellurix::windows
