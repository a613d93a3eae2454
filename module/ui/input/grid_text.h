#pragma once

#include "module/ui/controls/Grid.h"

#include <string>
#include <vector>

namespace tellurix::ui {

/// The cells of a grid as spreadsheets exchange them: separated by tabs, lines by CR LF.

/// What a user copies: the marked block, or else the current row; only columns that are seen. Empty
/// without either.
std::string copiedCells(const Grid& grid, bool withHeadings);

/// The lines and cells of a pasted text. A cell in quotation marks may hold tabs and line ends, and its
/// doubled quotation marks stand for one. A line end behind the last line begins no other one.
std::vector<std::vector<std::string>> pastedCells(const std::string& text);

/// A text without what would begin another cell or line: each becomes a blank.
std::string oneCell(std::string text);

} // namespace tellurix::ui
