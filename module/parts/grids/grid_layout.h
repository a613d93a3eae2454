#pragma once

#include "module/host/services.h"
#include "module/ui/Form.h"

#include <string>
#include <vector>

namespace tellurix::parts {

/// Keeps a grid's column layout for the user. What a screen was opened for is done by then: widths that
/// cannot be kept are reported, and are no failure of the call.
void keepLayout(host::HostServices& services, const host::TlxVar& session, const ui::Grid& grid,
                const std::string& key);

/// The grids of a form as the user wants them, each under the names of form and grid: "F_Start.grdContracts".
/// They are shown so from the beginning, and what the user changes is kept. A store that fails is reported;
/// the grids are as they are then.
class GridLayouts {
public:
    /// @param session has to live as long; the columns of all grids are there
    /// @param what the form shows, where it shows one thing now and another then: each has its own layout
    GridLayouts(host::HostServices& services, const host::TlxVar& session, const ui::Form& form,
                const std::string& what = {});

    /// Keeps those that are others than when they were shown or kept last.
    void keep();

private:
    host::HostServices& services_;
    const host::TlxVar& session_;
    struct Kept {
        ui::Grid* grid;
        std::string key;
        std::vector<ui::Grid::Column> columns;
    };
    std::vector<Kept> grids_;
};

} // namespace tellurix::parts
