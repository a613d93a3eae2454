#include "display/win32/controls/LabelView.h"

#include "com/automation/wide.h"

#include <algorithm>

namespace tellurix::windows {

LabelView::LabelView(ViewHost& host, ui::Label& label) : ControlView(host, label), label_(label) {
    create(L"STATIC", SS_LEFT);
}

void LabelView::setBeforeBox() {
    longestLine_ = 28;
    markStale();
    update();
}

SIZE LabelView::textSize() const {
    return theme().textSize(label_.caption(), true, longestLine_ * theme().characterWidth(), label_.strong());
}

Room LabelView::measure() const {
    const SIZE size = textSize();
    const int height = std::max(static_cast<int>(size.cy), theme().lineHeight());
    return {Extent::fixed(size.cx + theme().scaled(4)), Extent::fixed(height)};
}

HBRUSH LabelView::colour(HDC dc) const {
    const HBRUSH background = ControlView::colour(dc);
    if (!label_.warning().empty()) {
        SetTextColor(dc, theme().warningColour());
    } else if (label_.highlighted()) {
        SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    } else if (label_.quiet()) {
        SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    }
    return background;
}

void LabelView::draw() {
    // One line stands at the height of the text in the box beside it.
    const bool oneLine = textSize().cy < 2 * theme().textHeight();
    const LONG_PTR style = GetWindowLongPtrW(handle(), GWL_STYLE) & ~LONG_PTR{SS_CENTERIMAGE};
    SetWindowLongPtrW(handle(), GWL_STYLE, oneLine ? style | SS_CENTERIMAGE : style);
    const HFONT font = label_.strong() ? theme().boldFont() : theme().font();
    SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    showText(widen(label_.caption()));
    InvalidateRect(handle(), nullptr, TRUE); // its colour may be another one
}

} // namespace tellurix::windows
