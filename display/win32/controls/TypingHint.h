#pragma once

#include "display/win32/native/Theme.h"

#include <windows.h>

#include <string>

namespace tellurix::windows {

/// What a box takes, in the colours of tool tips under it, while something else was typed. Its window is made
/// when there is something to say for the first time, and goes with the window that it stands in.
class TypingHint {
public:
    /// Among the windows about one control, which are their user data, the words have this number.
    static constexpr int number = 1;

    TypingHint(const Theme& theme, HWND window) : theme_(theme), window_(window) {}

    /// @param text empty to hide it
    /// @param box its own window
    void show(const std::string& text, HWND box);
    bool has(HWND window) const { return window == words_; }
    /// WM_CTLCOLORSTATIC: sets up the device context. @return the background
    static HBRUSH colour(HDC dc);

private:
    const Theme& theme_;
    HWND window_;
    HWND words_ = nullptr;
};

} // namespace tellurix::windows
