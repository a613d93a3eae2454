#pragma once

#include "module/host/services.h"

#include <string>

namespace tellurix::standin {

/// Shows the services' dialogs: in the user's language, their grids as the user has left them.
class Dialogs {
public:
    /// @param services are used when a dialog is shown, not before; live as long
    explicit Dialogs(host::HostServices& services) : services_(services) {}

    /// Returns when the dialog was closed.
    /// @param what it shows, where the form shows one list now and another then
    void show(const host::TlxVar& session, ui::Form& form, const std::string& what = {});
    ui::Display& display() { return services_.display; }

private:
    host::HostServices& services_;
};

} // namespace tellurix::standin
