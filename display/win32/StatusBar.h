#pragma once

#include "display/win32/native/Theme.h"
#include "module/ui/StatusLine.h"

#include <windows.h>

namespace tellurix::windows {

/// The status line of a window: the system's status bar, with a button in it for what is offered. The
/// windows belong to the one that they stand in and go with it.
class StatusBar {
public:
    StatusBar(HWND window, const Theme& theme);

    /// The window is about to go: gives back what its parts took of the system.
    void forget();
    /// Shows the line as it is now.
    void draw(const ui::StatusLine& line);
    /// Puts it at the bottom of the window, after that got another size.
    void place();
    int height() const { return height_; }
    /// Whether a window is the button of the offer.
    bool isAction(HWND window) const { return window == action_; }

private:
    HWND window_;
    const Theme& theme_;
    HWND bar_;
    HWND action_;
    int height_;
};

} // namespace tellurix::windows
