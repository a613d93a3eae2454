#pragma once

#include "database/odbc/wide.h"
#include "module/base/database.h"

#include <string>
#include <string_view>

namespace tellurix::odbc {

/// What driver manager, driver and server said about the last call on a handle: all texts, each on a
/// line, and number and SQLSTATE of the first.
struct Report {
    std::string text;
    int number = 0;
    std::string state;
};

Report reportOf(SQLSMALLINT handleType, SQLHANDLE handle);

base::DatabaseError databaseError(const Report& report, std::string_view statement);

} // namespace tellurix::odbc
