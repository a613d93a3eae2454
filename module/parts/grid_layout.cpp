#include "module/parts/grid_layout.h"

#include <exception>

namespace tellurix::parts {

void keepLayout(host::HostServices& services, const host::TlxVar& session, const ui::Grid& grid,
                const std::string& key) {
    try {
        services.gridLayouts.save(session, grid, key);
    } catch (const std::exception& error) {
        services.errors.report(error);
    }
}

} // namespace tellurix::parts
