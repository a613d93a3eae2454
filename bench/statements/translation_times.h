#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tellurix::bench {

/// Measures what the embedded database does with a text that it has not seen before: parse it, bind
/// its names and write it in SQLite's SQL, and then have SQLite prepare that.
/// @param statements single statements; those that stand for rows edited in place are left out
void measureTranslation(const std::vector<std::string>& statements, std::ostream& out);

} // namespace tellurix::bench
