#pragma once

#include "module/host/TlxVar.h"
#include "module/host/services.h"
#include "module/ui/controls/Label.h"

#include <string>

namespace tellurix::parts {

/// What screens tell and ask in the same words.

/// Tells that an entry is wrong or missing, in the host's words.
/// @param label of the box it is about, whose caption follows in brackets; null for a message that says
///        no more
void tellInvalid(ui::Display& display, host::HostLocalizer& localizer, const host::TlxVar& session,
                 const ui::Label* label = nullptr);

/// Tells which box has to be filled in, and gives it the focus.
/// @return false
bool missing(host::HostServices& services, const host::TlxVar& session, const ui::Label& label,
             ui::Control& box);

/// Asks a question whose No is the default, because Yes loses something.
bool confirmed(ui::Display& display, const std::string& question, int icon = ui::box::question);

} // namespace tellurix::parts
