#include "display/win32/controls/FrameView.h"

#include "com/automation/wide.h"

namespace tellurix::windows {

FrameView::FrameView(ViewHost& host, ui::Frame& frame) : PaintedView(host, frame), frame_(frame) {
    // A group box, so that screen readers say its caption; what it looks like is painted here,
    // because native ones leave the ground between the controls as it was.
    create(L"BUTTON", BS_GROUPBOX);
}

Room FrameView::measure() const {
    const int caption = frame_.caption().empty() ? 0 : theme().textSize(frame_.caption(), true).cx;
    const RECT space = padding();
    return {Extent::fixed(caption + space.left + space.right), Extent::fixed(space.top + space.bottom)};
}

RECT FrameView::padding() const {
    const int side = theme().scaled(9);
    const int above = frame_.caption().empty() ? side : theme().textHeight() + theme().scaled(5);
    return {side, above, side, side};
}

void FrameView::draw() {
    showText(widen(frame_.caption()));
    InvalidateRect(handle(), nullptr, FALSE);
}

void FrameView::paint(HDC dc, const RECT& all) const {
    FillRect(dc, &all, background());
    RECT border = all;
    const bool captioned = !frame_.caption().empty();
    if (captioned) border.top += theme().textHeight() / 2;
    const GdiObject<HPEN> pen{CreatePen(PS_SOLID, 1, GetSysColor(COLOR_3DSHADOW))};
    {
        const Selected withPen{dc, HPEN{pen}};
        const Selected unfilled{dc, GetStockObject(NULL_BRUSH)};
        const int round = theme().scaled(4);
        RoundRect(dc, border.left, border.top, border.right, border.bottom, round, round);
    }
    if (!captioned) return;
    const std::wstring caption = L' ' + widen(frame_.caption()) + L' ';
    const Selected withFont{dc, theme().font()};
    RECT place = all;
    InflateRect(&place, -theme().gap(), 0);
    colour(dc);
    SetTextColor(dc, GetSysColor(frame_.usable() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    SetBkMode(dc, OPAQUE);
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &place,
              DT_SINGLELINE | DT_TOP | DT_LEFT | DT_END_ELLIPSIS);
}

} // namespace tellurix::windows
