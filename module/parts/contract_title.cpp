#include "module/parts/contract_title.h"

namespace tellurix::parts {

void localizeWithTitle(host::HostServices& services, const host::TlxVar& session, ui::Form& form,
                       const std::string& caption, const std::string& contract) {
    form.setTitle(caption);
    services.localizer.localize(session, form);
    if (!contract.empty()) form.setTitle(form.title() + " – " + contract);
}

} // namespace tellurix::parts
