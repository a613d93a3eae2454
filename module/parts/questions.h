#pragma once

#include "module/base/own_text.h"
#include "module/host/TlxVar.h"
#include "module/host/services.h"
#include "module/ui/controls/Label.h"

#include <string>
#include <vector>

namespace tellurix::parts {

/// What screens tell and ask in the same words.

/// Tells that an entry is wrong or missing, in the host's words.
/// @param label of the box it is about, whose caption follows in brackets; null for a message that says
///        no more
void tellInvalid(ui::Display& display, host::HostLocalizer& localizer, const host::TlxVar& session,
                 const ui::Label* label = nullptr);

/// Tells which box has to be filled in, there as well, and gives it the focus.
/// @return false
bool missing(host::HostServices& services, const host::TlxVar& session, const ui::Label& label,
             ui::Control& box);

/// What the status line says after saving: what was saved, and what came from somebody else meanwhile.
/// @param takenOver a sentence, empty for nothing
std::string savedText(base::OwnText saved, const std::string& takenOver, const std::string& language);

/// Asks a question whose No is the default, because Yes loses something.
bool confirmed(ui::Display& display, const std::string& question, int icon = ui::box::question);
bool confirmed(host::HostServices& services, const host::TlxVar& session, base::OwnText question,
               const std::vector<std::string>& values = {});

} // namespace tellurix::parts
