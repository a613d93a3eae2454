#include "display/win32/controls/TypingHint.h"

#include "com/automation/wide.h"

namespace tellurix::windows {

void TypingHint::show(const std::string& text, HWND box) {
    if (text.empty()) {
        if (words_ != nullptr) ShowWindow(words_, SW_HIDE);
        return;
    }
    if (words_ == nullptr) {
        words_ =
            CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_CLIPSIBLINGS | WS_BORDER | SS_NOPREFIX, 0, 0, 0,
                            0, window_, reinterpret_cast<HMENU>(INT_PTR{number}), moduleInstance(), nullptr);
        SendMessageW(words_, WM_SETFONT, reinterpret_cast<WPARAM>(theme_.font()), FALSE);
    }
    SetWindowTextW(words_, widen(text).c_str());
    SetWindowLongPtrW(words_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(box));
    RECT under{};
    GetWindowRect(box, &under);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&under), 2);
    RECT client{};
    GetClientRect(window_, &client);
    const SIZE size = theme_.textSize(text, false);
    const int height = static_cast<int>(size.cy) + theme_.scaled(4);
    // Where there is no room under the box it stands over it.
    const int top = static_cast<int>(under.bottom) + height > client.bottom
                        ? static_cast<int>(under.top) - height
                        : static_cast<int>(under.bottom);
    SetWindowPos(words_, HWND_TOP, under.left, top, static_cast<int>(size.cx) + theme_.scaled(8), height,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

HBRUSH TypingHint::colour(HDC dc) {
    SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
    SetBkColor(dc, GetSysColor(COLOR_INFOBK));
    return GetSysColorBrush(COLOR_INFOBK);
}

} // namespace tellurix::windows
