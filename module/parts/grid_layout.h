#pragma once

#include "module/host/services.h"

#include <string>

namespace tellurix::parts {

/// Keeps a grid's column layout for the user. What a screen was opened for is done by then: widths that
/// cannot be kept are reported, and are no failure of the call.
void keepLayout(host::HostServices& services, const host::TlxVar& session, const ui::Grid& grid,
                const std::string& key);

} // namespace tellurix::parts
