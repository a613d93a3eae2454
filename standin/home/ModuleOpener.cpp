#include "standin/home/ModuleOpener.h"

namespace tellurix::standin {

void ModuleOpener::open(const ContractToOpen& contract) {
    const base::Locale& locale = services_.host().locale;
    host::Variant confirmed = false;
    host::Boolean16 euroChange = host::Boolean16::False;
    module_.Vertrag_Run(session_, contract.id, contract.name, contract.type, std::string{locale.grouping},
                        std::string{locale.decimal}, contract.name, confirmed, euroChange,
                        services_.mainWindow(), contract.standardClient, contract.isNew, contract.caption,
                        false);
}

} // namespace tellurix::standin
