#pragma once

#include "bench/support/ScriptedPage.h"
#include "display/browser/session/BrowserDisplay.h"
#include "module/entry/clsVertrag.h"
#include "standin/services/WorkbenchServices.h"

#include <cstdint>
#include <string>

namespace tellurix::bench {

/// One user's session with everything that the workbench gives it, on a scripted page; its screens
/// are those of the calling thread.
class ContractSession {
public:
    /// @param connection, page outlive the session
    ContractSession(base::Connection& connection, ScriptedPage& page);
    ~ContractSession();
    ContractSession(const ContractSession&) = delete;
    ContractSession& operator=(const ContractSession&) = delete;

    /// Opens a contract as the host does; returns when the page's script has closed it.
    void open(std::int32_t contract, const std::string& type, bool newContract = false);
    /// @param kind of the contracts that are offered
    void openProvisionReports(std::int16_t kind);
    void openQuantityReports();

    standin::WorkbenchServices& services() { return services_; }
    const host::TlxVar& record() const { return session_; }

private:
    const standin::TextCatalogue catalogue_ = standin::TextCatalogue::builtIn();
    browser::BrowserDisplay display_;
    host::TlxVar session_;
    standin::WorkbenchServices services_;
    host::clsVertrag module_;
};

} // namespace tellurix::bench
