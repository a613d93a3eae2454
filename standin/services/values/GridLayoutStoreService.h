#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Grid layouts in the table WORKBENCH_GRID_LAYOUT, by user and key: the widths of the columns in
/// their order, with "=" behind those that the user has sized, "-" behind those that are hidden, "<" or ">"
/// behind the one that the rows are ordered by ("12 34=< 8-").
class GridLayoutStoreService final : public host::GridLayoutStore {
public:
    void save(const host::TlxVar& session, const ui::Grid& grid, const std::string& key) override;
    /// A layout of another number of columns is from an older version of the screen and not used.
    void restore(const host::TlxVar& session, ui::Grid& grid, const std::string& key) override;
};

} // namespace tellurix::standin
