#pragma once

#include "module/parts/grids/KeyedGrid.h"

#include <string>

namespace tellurix::logistics {

/// What the spreadsheet export service is told of a contract's helpers: the columns that are seen in the
/// grid, as they are shown there, and a last row with the sums of the quantities.
/// @param shown the grid of those rows
std::string helperExport(parts::KeyedGrid& helpers, const ui::Grid& shown);

} // namespace tellurix::logistics
