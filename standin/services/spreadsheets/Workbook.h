#pragma once

#include "module/base/Locale.h"
#include "standin/services/spreadsheets/TableText.h"

#include <filesystem>

namespace tellurix::standin {

/// Writes the table as a file for spreadsheet programs, as a sheet that can be worked with and printed at
/// once: headings bold, frozen and on every page, numbers and dates as such, columns as wide as their
/// texts, rows of sums (with "SUMME:" in a cell) set apart, the title in the page header.
///
/// A cell is a number only where what is read back is what was shown; all others are texts, also those
/// that look like formulas.
/// @param author of the file's properties; @param locale by which the numbers were written
/// @throws std::runtime_error when the table does not fit a sheet, or the file cannot be written
void writeWorkbook(const std::filesystem::path& file, const TableText& table, const std::string& title,
                   const std::string& author, const base::Locale& locale);

/// A name that a sheet can have, as near to the title as possible.
std::string sheetName(const std::string& title);

} // namespace tellurix::standin
