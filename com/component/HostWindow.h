#pragma once

#include "com/automation/Dispatch.h"
#include "module/host/HostContext.h"

#include <windows.h>

namespace tellurix::windows {

/// The host's main window, an object that is used late-bound.
class HostWindow final : public host::HostMainWindow {
public:
    /// @param object Nothing when the host has none to give
    explicit HostWindow(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    /// @throws AutomationError when the object does not know
    bool IsArtikel() override;

    /// The window that waits while a screen is open: the one that the object names by its property
    /// hWnd, else the one that the user works in on this thread. Null when there is neither.
    HWND handle();

private:
    Dispatch object_;
};

} // namespace tellurix::windows
