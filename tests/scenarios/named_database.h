#pragma once

#include "database/embedded/Database.h"
#include "database/odbc/Database.h"
#include "standin/home/database_file.h"

#include <memory>
#include <string>

namespace tellurix::tests {

/// A connection to the database that a command line names: a file, or "odbc:" and a connection string.
/// @param clock of the file's
inline std::unique_ptr<base::Connection> connectTo(const std::string& named, const base::Clock& clock) {
    if (named.starts_with(standin::serverMark))
        return odbc::Database{odbc::Source::parse(named.substr(standin::serverMark.size()))}.connect();
    return embedded::Database{named, clock}.connect();
}

} // namespace tellurix::tests
