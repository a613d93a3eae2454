#include "display/win32/native/endings.h"

namespace tellurix::windows {

bool threadIsEnding() {
    MSG quit{};
    return PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != 0;
}

void throwIfEnded(HWND owner) {
    if (owner != nullptr && !IsWindow(owner)) throw OwnerClosed{};
    if (threadIsEnding()) throw MessageLoopEnded{};
}

} // namespace tellurix::windows
