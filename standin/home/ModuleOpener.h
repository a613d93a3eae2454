#pragma once

#include "module/entry/clsVertrag.h"
#include "standin/home/ContractOpener.h"
#include "standin/services/WorkbenchServices.h"

namespace tellurix::standin {

/// Opens contracts and reports with the module that is linked into this program, as a host calls it.
class ModuleOpener final : public ContractOpener {
public:
    /// Both live as long as the opener.
    ModuleOpener(WorkbenchServices& services, host::TlxVar& session)
        : services_(services), session_(session), module_(services.host()) {}

    void open(const ContractToOpen& contract) override;
    void openProvisionReports(std::int16_t kind) override {
        module_.F_Bereitstellung_WVO_Run(session_, kind);
    }
    void openQuantityReports(std::int16_t kind) override {
        module_.F_VertragMengenmeldung_WVO_Run(session_, kind);
    }

private:
    WorkbenchServices& services_;
    host::TlxVar& session_;
    host::clsVertrag module_;
};

} // namespace tellurix::standin
