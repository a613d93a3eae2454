#include "display/win32/controls/ButtonView.h"

#include "com/automation/wide.h"
#include "display/win32/native/pictures.h"
#include "module/ui/controls/caption.h"

#include <algorithm>

namespace tellurix::windows {

ButtonView::ButtonView(ViewHost& host, ui::Button& button) : ControlView(host, button), button_(button) {
    create(L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON);
}

ButtonView::~ButtonView() {
    if (icon_ != nullptr) DestroyIcon(icon_);
}

Room ButtonView::measure() const {
    const int width = icon_ != nullptr
                          ? theme().lineHeight() + theme().scaled(4)
                          : std::max(theme().textSize(button_.caption(), true).cx + theme().scaled(22),
                                     static_cast<LONG>(theme().buttonWidth()));
    return {Extent::fixed(width), Extent::fixed(theme().lineHeight())};
}

void ButtonView::draw() {
    if (button_.picture() != shownPicture_) {
        shownPicture_ = button_.picture();
        drawPicture();
    }
    showText(widen(button_.caption()));
}

void ButtonView::setPrimary(bool primary) {
    SendMessageW(handle(), BM_SETSTYLE, primary ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

void ButtonView::drawPicture() {
    HICON before = icon_;
    icon_ = makePicture(shownPicture_, theme().scaled(16), GetSysColor(COLOR_BTNTEXT));
    const LONG_PTR style = GetWindowLongPtrW(handle(), GWL_STYLE) & ~LONG_PTR{BS_ICON};
    SetWindowLongPtrW(handle(), GWL_STYLE, icon_ == nullptr ? style : style | BS_ICON);
    SendMessageW(handle(), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon_));
    if (before != nullptr) DestroyIcon(before);
}

LRESULT ButtonView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SYSCOLORCHANGE && icon_ != nullptr) drawPicture();
    return native(message, wParam, lParam);
}

/// A picture is explained by its caption.
std::string ButtonView::tip() const {
    const bool explains = icon_ != nullptr && button_.toolTip().empty();
    return explains ? ui::plainCaption(button_.caption()) : button_.toolTip();
}

void ButtonView::notified(UINT code, NMHDR*) {
    if (code == BN_CLICKED) tell(ui::ClickEvent{&button_});
}

} // namespace tellurix::windows
