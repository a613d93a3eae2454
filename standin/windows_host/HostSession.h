#pragma once

#include "database/ado/AdoConnection.h"
#include "display/win32/Win32Display.h"
#include "standin/services/WorkbenchServices.h"
#include "standin/windows_host/ComContractOpener.h"
#include "standin/windows_host/HostOptions.h"

namespace tellurix::windows {

/// One user's session of the host program: a connection through ADO, the start page on it in native
/// windows, and the way to the module through COM. Belongs to the thread that made it, which has to
/// be an apartment of its own.
class HostSession {
public:
    /// Connects. @throws AutomationError when there is no such database, or a library is not registered
    explicit HostSession(const HostOptions& options);
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    /// Shows the start page; returns when the user closed it.
    void run();

private:
    /// For the start page and, in the companion library, for the module.
    void replaceSettings(const HostOptions& options);

    Dispatch connection_;
    ado::AdoConnection database_;
    Win32Display display_;
    const standin::TextCatalogue catalogue_ = standin::TextCatalogue::builtIn();
    host::TlxVar session_;
    standin::WorkbenchServices services_;
    Dispatch moduleService_; ///< of the companion library, which the module calls
};

} // namespace tellurix::windows
