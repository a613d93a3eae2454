#pragma once

#include "com/automation/Dispatch.h"
#include "module/base/Locale.h"
#include "module/host/HostContext.h"
#include "module/host/TlxVar.h"
#include "standin/home/ContractOpener.h"

#include <memory>

namespace tellurix::windows {

/// Opens contracts and reports as the host does: it creates the module's class through COM and calls it with
/// the session record. It knows the module by its type library alone.
class ComContractOpener final : public standin::ContractOpener {
public:
    /// @param connection the ADO connection that goes into the session record
    /// @param session the record's other values; outlives the opener
    ComContractOpener(Dispatch connection, const host::TlxVar& session,
                      std::shared_ptr<host::HostMainWindow> mainWindow,
                      const base::Locale& locale = base::Locale::german())
        : connection_(std::move(connection)),
          session_(session),
          mainWindow_(std::move(mainWindow)),
          locale_(locale) {}

    /// @throws AutomationError when the module is not registered, or reports an error
    void open(const standin::ContractToOpen& contract) override;
    void openProvisionReports(std::int16_t kind) override;
    void openQuantityReports(std::int16_t kind) override;

private:
    Dispatch connection_;
    const host::TlxVar& session_;
    std::shared_ptr<host::HostMainWindow> mainWindow_;
    base::Locale locale_;
};

} // namespace tellurix::windows
