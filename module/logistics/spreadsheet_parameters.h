#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::logistics {

/// A table as text: cells separated by tabs, rows by CR LF. A tab or line end inside a cell becomes a
/// blank.
std::string tableText(const std::vector<std::vector<std::string>>& rows);

/// What the spreadsheet export service is told beside the title.
/// @param formats an entry for each column from the left, each followed by ";": "0" for numbers, empty for
///        texts; columns beyond it are texts
/// @param table its first row holds the headings
std::string spreadsheetParameters(std::string_view formats, std::string_view table);

} // namespace tellurix::logistics
