#pragma once

#include "database/odbc/Database.h"

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

namespace tellurix::tests {

/// The connection string of a T-SQL server that somebody lends to the tests; null for none.
inline const char* serverOfEnvironment() {
    return std::getenv("TELLURIX_TEST_ODBC");
}

/// Whether tests have run there: then whatever is in its database is theirs.
inline bool& serverIsInUse() {
    static bool inUse = false;
    return inUse;
}

/// A connection to the lent server, whose database is the tests' own: it has to be empty when they begin, and
/// is emptied for every test.
inline std::unique_ptr<base::Connection> connectToServer(const char* named, bool emptied) {
    auto connection = odbc::Database{odbc::Source::parse(named)}.connect();
    if (!emptied) return connection;
    for (auto table = connection->open(
             "SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_TYPE = 'BASE TABLE'");
         !table->atEnd(); table->moveNext()) {
        if (!serverIsInUse())
            throw std::runtime_error{"the database that TELLURIX_TEST_ODBC names is not empty"};
        connection->execute("DROP TABLE [" + table->text(0) + "]");
    }
    serverIsInUse() = true;
    return connection;
}

} // namespace tellurix::tests
