#include "bench/support/ContractSession.h"

#include "bench/support/SampleFile.h"
#include "module/host/module_state.h"

namespace tellurix::bench {

ContractSession::ContractSession(base::Connection& connection, ScriptedPage& page)
    : display_(page),
      session_{.connection = &connection,
               .accessLevel = 0,
               .homeCurrency = "CHF",
               .site = {},
               .user = "bench",
               .language = "de"},
      services_(display_, session_, catalogue_, base::Locale::german(),
                std::make_unique<tests::StandingClock>(standingClock)),
      module_(services_.host()) {
    display_.setErrorHandling(&services_.host().errors);
}

ContractSession::~ContractSession() {
    // The kept screens hold on to the services.
    host::releaseModuleState();
    display_.setErrorHandling(nullptr);
}

void ContractSession::open(std::int32_t contract, const std::string& type, bool newContract) {
    host::Variant confirmed = false;
    host::Boolean16 euroChange = host::Boolean16::False;
    module_.Vertrag_Run(session_, contract, "", type, ".", ",", "", confirmed, euroChange,
                        services_.mainWindow(), 0, newContract, "Vertrag", false);
}

void ContractSession::openProvisionReports(std::int16_t kind) {
    module_.F_Bereitstellung_WVO_Run(session_, kind);
}

void ContractSession::openQuantityReports() {
    module_.F_VertragMengenmeldung_WVO_Run(session_, 0);
}

} // namespace tellurix::bench
