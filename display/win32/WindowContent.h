#pragma once

#include "display/win32/keys/Wheel.h"
#include "display/win32/layout/Part.h"

#include <memory>

namespace tellurix::windows {

/// What stands in a window, arranged in its client area: the window is as large as its content likes
/// and as the screen allows. Where that is too small, boxes and tables shrink, and then it scrolls.
class WindowContent {
public:
    /// @param style of the window, without scroll bars
    /// @param below height of the status line at the bottom, which takes nothing of the content's room
    WindowContent(HWND window, DWORD style, const Theme& theme, int below, std::unique_ptr<Part> content);

    /// Makes the window as large as its content likes, in the middle of another one.
    /// @param over null for the middle of the screen
    void fit(HWND over);
    /// Something in it needs other room than before.
    void roomChanged() { roomChanged_ = true; }
    /// Makes room for what changed.
    void update();
    /// Places everything after the window got another size.
    void arrange();
    /// From now on the window grows only as far as it has to.
    void sizedByUser() { sizedByUser_ = true; }
    /// The smallest size of the window.
    SIZE leastSize() const;

    /// @param bar SB_VERT or SB_HORZ
    /// @param request SB_LINEUP and so on
    void scroll(int bar, WORD request);
    /// @param message WM_MOUSEWHEEL or WM_MOUSEHWHEEL
    void wheel(UINT message, WPARAM wParam);
    /// On a screen that is too small for the window, the control that has the focus is never out of sight.
    void reveal(const RECT& rect);

private:
    void grow();
    void scrollTo(int x, int y);
    SIZE sizeAround(SIZE content) const;
    SIZE wanted(int Extent::*which) const;
    /// The client area without the status line.
    RECT area() const;

    HWND window_;
    DWORD style_;
    const Theme& theme_;
    int below_;
    std::unique_ptr<Part> content_;
    POINT scrolled_{};
    Wheel wheel_;
    RECT arranged_{}; ///< where the content stands
    bool roomChanged_ = true;
    bool sizedByUser_ = false;
};

} // namespace tellurix::windows
