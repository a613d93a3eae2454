#pragma once

#include "module/base/database.h"

namespace tellurix::standin {

/// Gives a database of an earlier version of this program the tables, columns and indexes that have come
/// since. What is in it stays as it is. One of the present version is asked for its number and no more, one
/// that is not ours or cannot be written is left alone.
/// @throws base::DatabaseError when it cannot be read, or is full or locked
void addWhatIsMissing(base::Connection& connection);

} // namespace tellurix::standin
