#pragma once

#include <windows.h>

namespace tellurix::windows {

/// The wheel over something that scrolls: up and down, or across with Shift or where the wheel is tilted.
/// What is too little for a whole unit is kept for the next time.
class Wheel {
public:
    /// Units to scroll by for a line (or a character across), and for a whole page.
    struct Step {
        int one;
        int page;
    };
    struct Turn {
        bool across;
        int units; ///< towards the end
    };
    /// @param message WM_MOUSEWHEEL or WM_MOUSEHWHEEL
    Turn turned(UINT message, WPARAM wParam, Step down, Step across);

private:
    int restDown_ = 0;
    int restAcross_ = 0;
};

} // namespace tellurix::windows
