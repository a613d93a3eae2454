#pragma once

#include "database/embedded/sqlite/SqlSession.h"

#include <sqlite3.h>

namespace tellurix::embedded {

/// `ts_only(value, position)`: the value of the only row, NULL when there is none, an error when
/// there are more. A subquery that stands for a value must not silently take the first of several.
void registerOnlyAggregate(sqlite3* connection, SqlSession& session);

} // namespace tellurix::embedded
