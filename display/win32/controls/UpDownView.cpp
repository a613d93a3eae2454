#include "display/win32/controls/UpDownView.h"

namespace tellurix::windows {

UpDownView::UpDownView(ViewHost& host, ui::UpDown& upDown) : ControlView(host, upDown), upDown_(upDown) {
    create(UPDOWN_CLASSW, WS_TABSTOP);
    // It counts nothing itself, but tells up from down only within a range.
    SendMessageW(handle(), UDM_SETRANGE32, 0, 2);
    SendMessageW(handle(), UDM_SETPOS32, 0, 1);
}

Room UpDownView::measure() const {
    return {Extent::fixed(theme().scaled(18)), Extent::fixed(theme().lineHeight())};
}

void UpDownView::notified(UINT code, NMHDR* details) {
    if (code != static_cast<UINT>(UDN_DELTAPOS)) return;
    auto* step = reinterpret_cast<NMUPDOWN*>(details);
    tell(ui::StepEvent{&upDown_, step->iDelta > 0});
    step->iDelta = 0;
}

LRESULT UpDownView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = native(message, wParam, lParam);
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) InvalidateRect(handle(), nullptr, TRUE);
    if (message == WM_PAINT && GetFocus() == handle()) {
        // The native control shows no focus, as it expects none.
        RECT all{};
        GetClientRect(handle(), &all);
        HDC dc = GetDC(handle());
        FrameRect(dc, &all, GetSysColorBrush(COLOR_HIGHLIGHT));
        ReleaseDC(handle(), dc);
    }
    return result;
}

} // namespace tellurix::windows
