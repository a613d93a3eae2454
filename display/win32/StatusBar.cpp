#include "display/win32/StatusBar.h"

#include "com/automation/wide.h"

#include <commctrl.h>

#include <stdexcept>

namespace tellurix::windows {

namespace {

HWND makeChild(HWND window, const wchar_t* windowClass, DWORD style, const char* name, HFONT font) {
    HWND made = CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, window,
                                nullptr, moduleInstance(), nullptr);
    if (made == nullptr) throw std::runtime_error{"Windows could not make the status bar"};
    setName(made, name);
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return made;
}

} // namespace

StatusBar::StatusBar(HWND window, const Theme& theme)
    : window_(window),
      theme_(theme),
      bar_(makeChild(window, STATUSCLASSNAMEW, WS_VISIBLE | CCS_NORESIZE | CCS_NOPARENTALIGN, "status",
                     theme.font())),
      action_(makeChild(window, L"BUTTON", BS_PUSHBUTTON, "statusAction", theme.font())),
      height_(theme.lineHeight() + theme.scaled(2)) {}

void StatusBar::forget() {
    forgetName(bar_);
    forgetName(action_);
}

void StatusBar::draw(const ui::StatusLine& line) {
    SendMessageW(bar_, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(widen(line.text()).c_str()));
    SetWindowTextW(action_, widen(line.action()).c_str());
    place();
    ShowWindow(action_, line.action().empty() ? SW_HIDE : SW_SHOWNA);
}

void StatusBar::place() {
    RECT client{};
    GetClientRect(window_, &client);
    const int top = static_cast<int>(client.bottom) - height_;
    // Content that is scrolled passes behind it.
    SetWindowPos(bar_, HWND_TOP, 0, top, client.right, height_, SWP_NOACTIVATE);
    const int behindText =
        theme_.textSize(narrow(windowText(bar_)), false).cx + theme_.margin() + theme_.gap();
    const int width = theme_.textSize(narrow(windowText(action_)), true).cx + theme_.scaled(22);
    SetWindowPos(action_, HWND_TOP, behindText, top + theme_.scaled(2), width, height_ - theme_.scaled(3),
                 SWP_NOACTIVATE);
}

} // namespace tellurix::windows
