#include "display/win32/controls/CheckBoxView.h"

#include "com/automation/wide.h"

namespace tellurix::windows {

CheckBoxView::CheckBoxView(ViewHost& host, ui::CheckBox& check) : ControlView(host, check), check_(check) {
    // Not an automatic one: whether it is ticked is the form's decision.
    create(L"BUTTON", WS_TABSTOP | BS_CHECKBOX);
}

Room CheckBoxView::measure() const {
    const int caption = theme().textSize(check_.caption(), true).cx;
    return {Extent::fixed(caption + theme().scaled(24)), Extent::fixed(theme().lineHeight())};
}

void CheckBoxView::draw() {
    showText(widen(check_.caption()));
    SendMessageW(handle(), BM_SETCHECK, check_.checked() ? BST_CHECKED : BST_UNCHECKED, 0);
}

void CheckBoxView::notified(UINT code, NMHDR*) {
    if (code == BN_CLICKED) tell(ui::ClickEvent{&check_});
}

} // namespace tellurix::windows
