#include "module/parts/grids/grid_layout.h"

#include <algorithm>
#include <exception>

namespace tellurix::parts {

namespace {

/// Whether two grids look the same, whatever their headings say: those change with the language.
bool sameLayout(const std::vector<ui::Grid::Column>& left, const std::vector<ui::Grid::Column>& right) {
    return std::ranges::equal(left, right, [](const ui::Grid::Column& a, const ui::Grid::Column& b) {
        return a.width == b.width && a.sized == b.sized && a.visible == b.visible && a.order == b.order;
    });
}

} // namespace

void keepLayout(host::HostServices& services, const host::TlxVar& session, const ui::Grid& grid,
                const std::string& key) {
    try {
        services.gridLayouts.save(session, grid, key);
    } catch (const std::exception& error) {
        services.errors.report(error);
    }
}

GridLayouts::GridLayouts(host::HostServices& services, const host::TlxVar& session, const ui::Form& form,
                         const std::string& what)
    : services_(services), session_(session) {
    for (ui::Control* control : form.controls()) {
        ui::Grid* grid = ui::as<ui::Grid>(control);
        if (grid == nullptr) continue;
        const std::string key = form.name() + "." + grid->name() + (what.empty() ? "" : "." + what);
        try {
            services_.gridLayouts.restore(session_, *grid, key);
            grid->onLayoutRestored();
        } catch (const std::exception& error) {
            services_.errors.report(error);
        }
        grids_.push_back({grid, key, grid->columns()});
    }
}

void GridLayouts::keep() {
    for (auto& [grid, key, columns] : grids_) {
        if (sameLayout(grid->columns(), columns)) continue;
        keepLayout(services_, session_, *grid, key);
        columns = grid->columns();
    }
}

} // namespace tellurix::parts
