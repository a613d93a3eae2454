#pragma once

#include "database/embedded/sqlite/SqliteStatement.h"
#include "database/embedded/values/types.h"
#include "module/base/database.h"

#include <cstdint>
#include <string>
#include <variant>

namespace tellurix::embedded {

/// A value as SQLite holds it; what it means says its static type.
using Cell = std::variant<std::monostate, std::int64_t, double, std::string>;

void bindCell(SqliteStatement& statement, int parameter, const Cell& cell);
Cell cellAt(const SqliteStatement& statement, int column);

/// The value of a column of the current row.
/// @throws Fault (conversion) when a result has left its type's range
base::Value valueAt(const SqliteStatement& statement, int column, const Type& type);

/// A value of the database port as a cell, and the type under which it goes into a conversion.
struct TypedCell {
    Cell cell;
    Type type;
};
TypedCell cellOf(const base::Value& value);

} // namespace tellurix::embedded
