#pragma once

#include <string>

namespace tellurix::tests {

/// The files that the screens hand to the programs of their kinds: this program is the one for spreadsheets,
/// and notes what it was given.

/// Registers it for the user who is signed on, and forgets what was opened before.
void openFilesWithThisProgram();

/// To be asked first by the program: when it was started with a file, that is noted.
/// @return whether that was all it was started for
bool noteOpenedFile();

/// Name of the last file that was opened and is not empty; empty for none.
std::string lastOpenedFile();

} // namespace tellurix::tests
