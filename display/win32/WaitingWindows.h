#pragma once

#include <windows.h>

#include <vector>

namespace tellurix::windows {

/// While it lives, the other windows of this thread, and the window that a screen belongs to, take no
/// input: the screen is modal. Afterwards those are as they were before.
class WaitingWindows {
public:
    explicit WaitingWindows(HWND owner);
    ~WaitingWindows() { release(); }
    WaitingWindows(const WaitingWindows&) = delete;
    WaitingWindows& operator=(const WaitingWindows&) = delete;

    void release();

private:
    void disable(HWND window);

    std::vector<HWND> windows_; ///< those that were enabled
};

} // namespace tellurix::windows
