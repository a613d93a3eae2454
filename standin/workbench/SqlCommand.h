#pragma once

#include "module/base/database.h"
#include "standin/workbench/CommandLine.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// Sends each text as one statement text and prints one line for it, whatever the others do:
/// {"columns": […], "rows": [[…], …]}, {"rowcount": n}, or {"error": {"message": …, "position": …}}.
/// @return whether all succeeded
bool runTexts(base::Connection& connection, const std::vector<std::string>& texts, std::ostream& out);

/// The texts of a file: cut at lines that hold only GO, the empty ones left out.
/// @throws std::system_error when it cannot be read
std::vector<std::string> textsOfFile(const std::string& path);
std::vector<std::string> textsOfStream(std::istream& in);

/// The `sql` command.
/// @return the exit status: 0, or 1 when a text failed
int runSql(const CommandLine& line, std::istream& in, std::ostream& out);

/// The `prepare` command: prints what it did, a sentence a line.
/// @return the exit status
/// @throws std::exception when the database cannot be used
int runPrepare(const CommandLine& line, std::ostream& out);

} // namespace tellurix::standin
