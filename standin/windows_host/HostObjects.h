#pragma once

#include "com/automation/DispatchObject.h"
#include "module/host/HostContext.h"

#include <functional>
#include <memory>
#include <string>

namespace tellurix::windows {

/// The host's main window as the module gets it: `IsArtikel`, and `hWnd`, the window that waits while
/// a screen of the module is open.
class MainWindowObject final : public DispatchObject {
public:
    explicit MainWindowObject(std::shared_ptr<host::HostMainWindow> window) : window_(std::move(window)) {}

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Host.MainWindow"; }

private:
    std::shared_ptr<host::HostMainWindow> window_;
};

/// Told by the companion library of every request of the module: `Notify(code, type)`.
class NotificationListener final : public DispatchObject {
public:
    using Receiver = std::function<void(const std::string& code, const std::string& type)>;

    explicit NotificationListener(Receiver receiver) : receiver_(std::move(receiver)) {}

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Host.NotificationListener"; }

private:
    Receiver receiver_;
};

} // namespace tellurix::windows
