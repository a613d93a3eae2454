#include "display/win32/native/ToolTips.h"

#include "com/automation/wide.h"
#include "display/win32/native/native.h"

#include <commctrl.h>

namespace tellurix::windows {

void ToolTips::set(HWND over, const std::string& text) {
    const auto shown = texts_.find(over);
    if (shown == texts_.end() ? text.empty() : shown->second == text) return;
    if (tips_ == nullptr) {
        tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0,
                                window_, nullptr, moduleInstance(), nullptr);
    }
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = window_;
    tool.uId = reinterpret_cast<UINT_PTR>(over);
    if (shown != texts_.end()) {
        SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        texts_.erase(shown);
    }
    if (text.empty()) return;
    std::wstring wide = widen(text);
    tool.lpszText = wide.data();
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    texts_.emplace(over, text);
}

} // namespace tellurix::windows
