#include "display/win32/controls/PaintedView.h"

namespace tellurix::windows {

LRESULT PaintedView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT drawing{};
        RECT all{};
        GetClientRect(handle(), &all);
        paint(BeginPaint(handle(), &drawing), all);
        EndPaint(handle(), &drawing);
        return 0;
    }
    case WM_SIZE:
    case WM_ENABLE:
        InvalidateRect(handle(), nullptr, FALSE);
        return 0;
    default:
        return native(message, wParam, lParam);
    }
}

} // namespace tellurix::windows
