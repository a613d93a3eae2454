#include "database/embedded/translation/definitions.h"

#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

struct NullableKey {
    std::string name;
    bool nullable;
};

const ColumnDefinition& columnNamed(const TableDefinition& table, const Name& name) {
    const auto found =
        std::find_if(table.columns.begin(), table.columns.end(),
                     [&](const ColumnDefinition& column) { return column.name.folded == name.folded; });
    if (found == table.columns.end())
        failUnknownName("The table " + std::string(table.table.written) + " has no column " +
                            std::string(name.written),
                        name.position);
    return *found;
}

bool isKeyOfPrimary(const TableDefinition& table, const ColumnDefinition& column) {
    return column.primaryKey ||
           std::any_of(table.keys.begin(), table.keys.end(), [&](const KeyDefinition& key) {
               return key.primary &&
                      std::any_of(key.columns.begin(), key.columns.end(),
                                  [&](const Name& name) { return name.folded == column.name.folded; });
           });
}

/// Whether the primary key is the identity alone, which SQLite has in the row's own number.
bool isIdentityKey(const TableDefinition& table, const KeyDefinition& key) {
    return key.primary && key.columns.size() == 1 && columnNamed(table, key.columns.front()).identity;
}

void requireSensible(const TableDefinition& table) {
    int identities = 0;
    int primaryKeys = 0;
    for (const ColumnDefinition& column : table.columns) {
        if (&columnNamed(table, column.name) != &column)
            failSyntax("The column " + std::string(column.name.written) + " is defined twice",
                       column.name.position);
        if (column.identity && ++identities > 1)
            failSyntax("A table has at most one IDENTITY column", column.name.position);
        primaryKeys += column.primaryKey ? 1 : 0;
    }
    for (const KeyDefinition& key : table.keys)
        primaryKeys += key.primary ? 1 : 0;
    if (primaryKeys > 1) failSyntax("A table has at most one PRIMARY KEY", table.table.position);
}

std::string typeText(const ColumnDefinition& column) {
    std::string text = " " + declarationOf(column.typeName.folded, column.type);
    if (column.type.isText()) text += std::string(" COLLATE ") + Collation::name;
    return text;
}

std::string columnText(const TableDefinition& table, const ColumnDefinition& column) {
    std::string text = quoteName(column.name.written);
    if (column.identity)
        // Exactly these words make SQLite give the keys, and never one of them again.
        return text + " INTEGER PRIMARY KEY AUTOINCREMENT";
    text += typeText(column);
    if (!column.nullable || isKeyOfPrimary(table, column)) text += " NOT NULL";
    if (column.primaryKey) text += " PRIMARY KEY";
    if (column.unique) text += " UNIQUE";
    if (!column.defaultText.empty()) text += " DEFAULT " + quoteText(column.defaultText);
    return text;
}

std::string keyText(const TableDefinition& table, const KeyDefinition& key) {
    const bool hasIdentity = std::any_of(table.columns.begin(), table.columns.end(),
                                         [](const ColumnDefinition& column) { return column.identity; });
    // The identity takes SQLite's place of the primary key; another one is a unique key.
    std::string text = key.primary && !hasIdentity ? "PRIMARY KEY (" : "UNIQUE (";
    for (const Name& name : key.columns)
        text += quoteName(columnNamed(table, name).name.written) + ",";
    text.back() = ')';
    return text;
}

/// T-SQL takes NULL for a value that a unique key holds once; for SQLite no NULL equals another.
/// A second index over the rows with a NULL in the key closes that gap.
void createNullGuard(SqliteConnection& connection, const std::string& table, const std::string& name,
                     const std::vector<NullableKey>& columns) {
    std::string expressions;
    std::string condition;
    for (const auto& [column, nullable] : columns) {
        const std::string sql = quoteName(column);
        if (!nullable) {
            expressions += sql + ",";
            continue;
        }
        const std::string isNull = sql + " IS NULL";
        expressions.append("(").append(isNull).append("),ifnull(").append(sql).append(",0) COLLATE ");
        expressions.append(Collation::name).append(",");
        if (!condition.empty()) condition += " OR ";
        condition += isNull;
    }
    if (condition.empty()) return;
    expressions.pop_back();
    connection.run("CREATE UNIQUE INDEX main." + quoteName(name) + " ON " + quoteName(table) + " (" +
                   expressions + ") WHERE " + condition);
}

void createNullGuards(SqliteConnection& connection, const TableDefinition& table) {
    const std::string tableName(table.table.written);
    const auto create = [&](const std::vector<NullableKey>& columns) {
        std::string name = tableName;
        for (const NullableKey& column : columns)
            name += "." + column.name;
        createNullGuard(connection, tableName, name + " NULL", columns);
    };
    for (const ColumnDefinition& column : table.columns)
        if (column.unique) create({{std::string(column.name.written), column.nullable}});
    for (const KeyDefinition& key : table.keys) {
        if (key.primary) continue;
        std::vector<NullableKey> columns;
        for (const Name& name : key.columns)
            columns.push_back(
                {std::string(columnNamed(table, name).name.written), columnNamed(table, name).nullable});
        create(columns);
    }
}

} // namespace

std::string createTableText(const TableDefinition& definition, const std::string& sqlName) {
    requireSensible(definition);
    std::string sql = "CREATE TABLE " + sqlName + " (";
    for (const ColumnDefinition& column : definition.columns)
        sql += columnText(definition, column) + ",";
    for (const KeyDefinition& key : definition.keys)
        if (!isIdentityKey(definition, key)) sql += keyText(definition, key) + ",";
    sql.back() = ')';
    return sql;
}

Table tableOf(const TableDefinition& definition, const std::string& sqlName) {
    std::vector<TableColumn> columns;
    for (const ColumnDefinition& column : definition.columns)
        columns.push_back({std::string(column.name.written), column.type, column.identity, column.nullable,
                           std::string(column.defaultText)});
    return {std::string(definition.table.written), sqlName, std::move(columns)};
}

void createTable(SqliteConnection& connection, Catalogue& catalogue, const TableDefinition& definition) {
    const std::string name(definition.table.written);
    if (catalogue.find(definition.table.folded) != nullptr)
        throw Fault(base::DatabaseErrorCategory::other, "There already is a table " + name,
                    definition.table.position);
    SqliteTransaction transaction(connection);
    connection.run(createTableText(definition, "main." + quoteName(name)));
    for (const ColumnDefinition& column : definition.columns)
        if (column.identity && column.seed != 1)
            connection.run("INSERT INTO sqlite_sequence (name,seq) VALUES (" + quoteText(name) + "," +
                           std::to_string(column.seed - 1) + ")");
    createNullGuards(connection, definition);
    transaction.commit();
}

void addColumns(SqliteConnection& connection, Catalogue& catalogue, const AddColumnsStatement& statement) {
    const Table* const table = catalogue.find(statement.table.folded);
    if (table == nullptr)
        failUnknownName("There is no table " + std::string(statement.table.written),
                        statement.table.position);
    SqliteTransaction transaction(connection);
    for (const ColumnDefinition& column : statement.columns) {
        if (table->findColumn(column.name.folded) != Table::noColumn)
            throw Fault(base::DatabaseErrorCategory::other,
                        "The table " + table->name() + " already has a column " +
                            std::string(column.name.written),
                        column.name.position);
        connection.run("ALTER TABLE " + table->sqlName() + " ADD COLUMN " + quoteName(column.name.written) +
                       typeText(column));
    }
    transaction.commit();
}

void createIndex(SqliteConnection& connection, Catalogue& catalogue, const CreateIndexStatement& statement) {
    const Table* const table = catalogue.find(statement.table.folded);
    if (table == nullptr)
        failUnknownName("There is no table " + std::string(statement.table.written),
                        statement.table.position);
    // Two tables may have indexes of one name, which SQLite does not allow.
    const std::string name = table->name() + "." + std::string(statement.index.written);
    std::string sql = statement.unique ? "CREATE UNIQUE INDEX main." : "CREATE INDEX main.";
    sql += quoteName(name) + " ON " + quoteName(table->name()) + " (";
    std::vector<NullableKey> columns;
    for (const IndexedColumn& column : statement.columns) {
        const int index = table->findColumn(column.name.folded);
        if (index == Table::noColumn)
            failUnknownName("The table " + table->name() + " has no column " +
                                std::string(column.name.written),
                            column.name.position);
        sql += quoteName(table->column(index).name) + (column.descending ? " DESC," : ",");
        columns.push_back({table->column(index).name, table->column(index).nullable});
    }
    sql.back() = ')';
    SqliteTransaction transaction(connection);
    connection.run(sql);
    if (statement.unique) createNullGuard(connection, table->name(), name + " NULL", columns);
    transaction.commit();
}

void dropTable(SqliteConnection& connection, Catalogue& catalogue, const DropTableStatement& statement) {
    const Table* const table = catalogue.find(statement.table.folded);
    if (table == nullptr) {
        if (statement.ifExists) return;
        failUnknownName("There is no table " + std::string(statement.table.written),
                        statement.table.position);
    }
    connection.run("DROP TABLE " + table->sqlName());
}

} // namespace tellurix::embedded
