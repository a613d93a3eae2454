#include "display/win32/native/clipboard.h"

namespace tellurix::windows {

std::wstring clipboardText(HWND window) {
    std::wstring text;
    if (!OpenClipboard(window)) return text;
    if (HANDLE held = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* start = static_cast<const wchar_t*>(GlobalLock(held))) {
            // Whoever copied it need not have ended it.
            text.assign(start, wcsnlen(start, GlobalSize(held) / sizeof(wchar_t)));
            GlobalUnlock(held);
        }
    }
    CloseClipboard();
    return text;
}

void setClipboardText(HWND window, const std::wstring& text) {
    if (!OpenClipboard(window)) return;
    EmptyClipboard();
    if (HGLOBAL held = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t))) {
        auto* start = static_cast<wchar_t*>(GlobalLock(held));
        if (start != nullptr) {
            start[text.copy(start, text.size())] = L'\0';
            GlobalUnlock(held);
        }
        // From then on it is the clipboard's.
        if (start == nullptr || SetClipboardData(CF_UNICODETEXT, held) == nullptr) GlobalFree(held);
    }
    CloseClipboard();
}

} // namespace tellurix::windows
