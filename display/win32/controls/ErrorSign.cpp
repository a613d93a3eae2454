#include "display/win32/controls/ErrorSign.h"

#include "com/automation/wide.h"
#include "display/win32/native/pictures.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

constexpr int widestLine = 40; ///< in average characters

HWND makeStatic(HWND window, DWORD style) {
    return CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, window, nullptr,
                           moduleInstance(), nullptr);
}

} // namespace

ErrorSign::~ErrorSign() {
    if (picture_ != nullptr) DestroyIcon(picture_);
}

void ErrorSign::show(const std::string& text, HWND about) {
    text_ = text;
    if (!shown()) return;
    if (words_ == nullptr) {
        icon_ = makeStatic(window_, SS_ICON | SS_CENTERIMAGE);
        words_ = makeStatic(window_, SS_LEFT | SS_NOPREFIX);
        SendMessageW(words_, WM_SETFONT, reinterpret_cast<WPARAM>(theme_.font()), FALSE);
        picture_ = makePicture("error", theme_.scaled(16), theme_.warningColour());
        SendMessageW(icon_, STM_SETICON, reinterpret_cast<WPARAM>(picture_), 0);
        // What is made last lies below the others, the frame around the box among them.
        for (HWND part : {words_, icon_})
            SetWindowPos(part, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    SetWindowTextW(words_, widen(text_).c_str());
    SetWindowLongPtrW(words_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(about));
}

SIZE ErrorSign::size() const {
    if (!shown()) return {};
    const SIZE words = theme_.textSize(text_, false, widestLine * theme_.characterWidth());
    return {words.cx + theme_.scaled(16) + 2 * theme_.gap(), words.cy};
}

void ErrorSign::place(const RECT& rect) {
    if (!shown()) return;
    const LONG icon = rect.left + theme_.gap();
    const LONG words = icon + theme_.scaled(16) + theme_.gap() / 2;
    // One line stands at the height of the text in the box beside it.
    const LONG spare = std::max<LONG>(theme_.lineHeight() - size().cy, 0) / 2;
    SetWindowPos(icon_, nullptr, icon, rect.top, theme_.scaled(16), theme_.lineHeight(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(words_, nullptr, words, rect.top + spare, rect.right - words, rect.bottom - rect.top - spare,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void ErrorSign::setVisible(bool visible) {
    for (HWND part : {icon_, words_})
        if (part != nullptr) ShowWindow(part, visible && shown() ? SW_SHOWNA : SW_HIDE);
}

} // namespace tellurix::windows
