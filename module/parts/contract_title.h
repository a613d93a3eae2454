#pragma once

#include "module/host/TlxVar.h"
#include "module/host/services.h"
#include "module/ui/Form.h"

#include <cstdint>
#include <string>

namespace tellurix::parts {

/// `VERTRAG_NAME`.
std::string contractName(host::HostServices& services, const host::TlxVar& session, std::int32_t contract);

/// The title of a form: "Preise – R-2025-001".
/// @param contract its name; empty where the title is to be the caption alone
std::string titleWith(const std::string& caption, const std::string& contract);

/// Has the host translate the words of a form, and puts the contract behind the caption that its title
/// begins with.
/// @param caption the form's own, of which an earlier visit has made the title of another contract
/// @param contract its name; empty where the title is to be the caption alone
void localizeWithTitle(host::HostServices& services, const host::TlxVar& session, ui::Form& form,
                       const std::string& caption, const std::string& contract);

} // namespace tellurix::parts
