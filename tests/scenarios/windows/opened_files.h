#pragma once

#include <filesystem>
#include <string>

namespace tellurix::tests {

/// The files that the screens hand to the programs of their kinds. For spreadsheets that is
/// `spreadsheet_program`, which notes what it was given: it has no window, so the screen keeps the keys.

/// Registers that program, for the drive of the tests, and forgets what was opened before.
void registerSpreadsheetProgram();
/// Name of the last file that was opened and is not empty; empty for none.
std::string lastOpenedFile();

/// Where the program makes its notes.
std::filesystem::path notesOfOpenedFiles();

} // namespace tellurix::tests
