#pragma once

#include "standin/workbench/CommandLine.h"

#include <iosfwd>

namespace tellurix::standin {

/// Serves the screens to browsers until SIGINT or SIGTERM. Prints one line, the address to open.
/// @return the exit status
/// @throws std::exception when the database or the port cannot be had
int serve(const CommandLine& line, std::ostream& out);

} // namespace tellurix::standin
