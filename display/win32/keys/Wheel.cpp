#include "display/win32/keys/Wheel.h"

#include <climits> // WHEEL_PAGESCROLL is made of its UINT_MAX

namespace tellurix::windows {

namespace {

/// @param setting SPI_GETWHEELSCROLLLINES or SPI_GETWHEELSCROLLCHARS
int unitsOfNotch(UINT setting, Wheel::Step step) {
    UINT count = 3;
    SystemParametersInfoW(setting, 0, &count, 0);
    return count == WHEEL_PAGESCROLL ? step.page : static_cast<int>(count) * step.one;
}

} // namespace

Wheel::Turn Wheel::turned(UINT message, WPARAM wParam, Step down, Step across) {
    const bool tilted = message == WM_MOUSEHWHEEL;
    const bool isAcross = tilted || (LOWORD(wParam) & MK_SHIFT) != 0;
    const int delta = static_cast<short>(HIWORD(wParam));
    int& rest = isAcross ? restAcross_ : restDown_;
    rest += (tilted ? delta : -delta) * (isAcross ? unitsOfNotch(SPI_GETWHEELSCROLLCHARS, across)
                                                  : unitsOfNotch(SPI_GETWHEELSCROLLLINES, down));
    const int units = rest / WHEEL_DELTA;
    rest %= WHEEL_DELTA;
    return {isAcross, units};
}

} // namespace tellurix::windows
