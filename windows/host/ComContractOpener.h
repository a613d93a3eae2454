#pragma once

#include "automation/Dispatch.h"
#include "common/Locale.h"
#include "home/ContractOpener.h"
#include "host/HostContext.h"
#include "host/TlxVar.h"

#include <memory>

namespace tellurix::windows {

/// Opens contracts as the host does: it creates the module's class through COM and calls it with the
/// session record. It knows the module by its type library alone.
class ComContractOpener final : public workbench::ContractOpener {
public:
    /// @param connection the ADO connection that goes into the session record
    /// @param session the record's other values; outlives the opener
    ComContractOpener(Dispatch connection, const host::TlxVar& session,
                      std::shared_ptr<host::HostMainWindow> mainWindow,
                      const common::Locale& locale = common::Locale::german())
        : connection_(std::move(connection)),
          session_(session),
          mainWindow_(std::move(mainWindow)),
          locale_(locale) {}

    /// @throws AutomationError when the module is not registered, or reports an error
    void open(const workbench::ContractToOpen& contract) override;

private:
    Dispatch connection_;
    const host::TlxVar& session_;
    std::shared_ptr<host::HostMainWindow> mainWindow_;
    common::Locale locale_;
};

} // namespace tellurix::windows
