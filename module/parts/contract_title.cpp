#include "module/parts/contract_title.h"

namespace tellurix::parts {

std::string contractName(host::HostServices& services, const host::TlxVar& session, std::int32_t contract) {
    return services.dataAccess.readValue(session, "VERTRAG_NAME", "VERTRAEGE",
                                         " ID_VERTRAG = " + std::to_string(contract));
}

std::string titleWith(const std::string& caption, const std::string& contract) {
    return contract.empty() ? caption : caption + " – " + contract;
}

void localizeWithTitle(host::HostServices& services, const host::TlxVar& session, ui::Form& form,
                       const std::string& caption, const std::string& contract) {
    form.setTitle(caption);
    services.localizer.localize(session, form);
    form.setTitle(titleWith(form.title(), contract));
}

} // namespace tellurix::parts
