#include "display/win32/controls/CheckBoxView.h"

#include "com/automation/wide.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

constexpr int longestLine = 56; ///< of a caption, in average characters; a longer one is broken

} // namespace

CheckBoxView::CheckBoxView(ViewHost& host, ui::CheckBox& check) : ControlView(host, check), check_(check) {
    // Not an automatic one: whether it is ticked is the form's decision.
    create(L"BUTTON", WS_TABSTOP | BS_CHECKBOX | BS_MULTILINE);
}

Room CheckBoxView::measure() const {
    const SIZE caption = theme().textSize(check_.caption(), true, longestLine * theme().characterWidth());
    return {Extent::fixed(caption.cx + theme().scaled(24)),
            Extent::fixed(std::max(static_cast<int>(caption.cy), theme().lineHeight()))};
}

void CheckBoxView::draw() {
    showText(widen(check_.caption()));
    SendMessageW(handle(), BM_SETCHECK, check_.checked() ? BST_CHECKED : BST_UNCHECKED, 0);
}

void CheckBoxView::notified(UINT code, NMHDR*) {
    if (code == BN_CLICKED) tell(ui::ClickEvent{&check_});
}

} // namespace tellurix::windows
