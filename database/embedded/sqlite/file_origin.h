#pragma once

#include <cstdint>
#include <sqlite3.h>

namespace tellurix::embedded {

/// Whose a database file is, as far as its first bytes tell.
enum class FileOrigin : std::uint8_t {
    nobodys,  ///< there is no file, or it is empty
    own,      ///< it carries our mark
    unmarked, ///< SQLite's, without a mark: another program's, or ours from before there was one
    foreign,  ///< it carries another program's mark
    noDatabase
};

/// Stands in the place that SQLite has for an application's mark: "TLXV".
constexpr std::int32_t ownApplicationId = 0x544C5856;

/// Reads the first bytes of a database that has just been opened and not been used: nothing is changed
/// or locked by that. It is read through SQLite's own open file, because a process that closes any other
/// one of the same file loses all its locks on it, and with them what keeps another program from
/// removing the log that the sessions write into.
FileOrigin originOf(sqlite3& database);

} // namespace tellurix::embedded
