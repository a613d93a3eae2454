#include "com/component/HostWindow.h"

#include "com/automation/AutomationError.h"
#include "display/win32/native/active_window.h"

namespace tellurix::windows {

bool HostWindow::IsArtikel() {
    return object_.call(L"IsArtikel").flag();
}

HWND HostWindow::handle() {
    if (object_) {
        try {
            // Window handles have 32 significant bits, and forms give them as a Long.
            const auto window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(object_.get(L"hWnd").integer()));
            if (IsWindow(window)) return window;
        } catch (const AutomationError&) {
            // An object without that property; the host works in a window all the same.
        }
    }
    return activeWindow();
}

} // namespace tellurix::windows
