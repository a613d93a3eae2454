#pragma once

#include "display/win32/grid/GridGeometry.h"

namespace tellurix::windows {

/// Draws the part of a grid that is seen, in colours of the system.
/// @param area what of the window is drawn
void paintGrid(HDC dc, const RECT& area, const ui::Grid& grid, const GridGeometry& geometry,
               const Theme& theme, bool focused);

} // namespace tellurix::windows
