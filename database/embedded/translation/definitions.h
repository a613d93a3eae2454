#pragma once

#include "database/embedded/sqlite/SqliteConnection.h"
#include "database/embedded/syntax/ast.h"
#include "database/embedded/translation/Catalogue.h"

#include <string>

namespace tellurix::embedded {

/// Changes of the schema. They run at once, each in one piece.

/// @throws Fault when there already is such a table or index, or a name in the definition is wrong
void createTable(SqliteConnection& connection, Catalogue& catalogue, const TableDefinition& definition);
/// @throws Fault when there is no such table, or there already is such a column
void addColumns(SqliteConnection& connection, Catalogue& catalogue, const AddColumnsStatement& statement);
void createIndex(SqliteConnection& connection, Catalogue& catalogue, const CreateIndexStatement& statement);
void dropTable(SqliteConnection& connection, Catalogue& catalogue, const DropTableStatement& statement);

/// CREATE TABLE as SQLite takes it. The T-SQL types stand in it as they were declared, so that
/// SQLite's catalogue is the only one.
std::string createTableText(const TableDefinition& definition, const std::string& sqlName);

/// The table as it will be read back.
Table tableOf(const TableDefinition& definition, const std::string& sqlName);

} // namespace tellurix::embedded
