#pragma once

#include "module/host/services.h"
#include "module/ui/controls/TextBox.h"

#include <functional>
#include <string>

namespace tellurix::parts {

/// Makes a box a date box (see `ui::makeDateBox`) whose picker is the host's calendar.
/// @param session the screen's own copy of the session record
/// @param title of the calendar, asked for when it opens
void makeDateBox(ui::TextBox& box, host::HostServices& services, const host::TlxVar& session,
                 std::function<std::string()> title);

} // namespace tellurix::parts
