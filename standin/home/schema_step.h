#pragma once

#include "module/base/database.h"

#include <string>
#include <vector>

namespace tellurix::standin {

/// Gives a database of an earlier version of this program the tables, columns and indexes that have come
/// since. What is in it stays as it is. One of the present version is asked for its number and no more, one
/// that is not ours or cannot be written is left alone.
/// @throws base::DatabaseError when it cannot be read, or is full or locked
void addWhatIsMissing(base::Connection& connection);

/// Whether the tables of the workbench's own services are there.
bool hasWorkbenchTables(base::Connection& connection);

/// Makes those tables where they are missing; with `withSample` every table of the schema, and the sample
/// trade when none of them has rows or lacks columns. What is there is not touched.
/// @return what was done and what was not, a sentence each
/// @throws base::DatabaseError
std::vector<std::string> prepare(base::Connection& connection, bool withSample);

} // namespace tellurix::standin
