#include "database/embedded/syntax/Parser.h"
#include "database/embedded/translation/Translator.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

std::string labelOf(const Table& table, int column) {
    return table.name() + "." + table.column(column).name;
}

Fragment convertForColumn(Fragment value, const Table& table, int column) {
    const std::string label = labelOf(table, column);
    return convert(std::move(value), table.column(column).type,
                   {.purpose = Destination::Purpose::column, .column = label});
}

void requireCount(std::size_t count, std::size_t columns, std::size_t position) {
    if (count != columns)
        failSyntax("INSERT names " + std::to_string(columns) + " columns and gives " + std::to_string(count) +
                       " values",
                   position);
}

} // namespace

int Translator::assignedColumn(const Table& table, const Name& name) const {
    const int column = table.findColumn(name.folded);
    if (column == Table::noColumn)
        failUnknownName("The table " + table.name() + " has no column " + std::string(name.written),
                        name.position);
    return column;
}

/// The columns that an UPDATE sets, in the order of its assignments.
std::vector<int> Translator::updatedColumns(const UpdateStatement& update, const Table& table) const {
    std::vector<int> columns;
    for (const Assignment& assignment : update.assignments) {
        const int column = assignedColumn(table, assignment.column);
        if (table.column(column).identity)
            failSyntax("The identity " + labelOf(table, column) + " cannot be changed",
                       assignment.column.position);
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            failSyntax("The column " + labelOf(table, column) + " is set twice", assignment.column.position);
        columns.push_back(column);
    }
    return columns;
}

std::vector<int> Translator::insertColumns(const InsertStatement& insert, const Table& table) const {
    std::vector<int> columns;
    for (const Name& name : insert.columns) {
        const int column = assignedColumn(table, name);
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            failSyntax("The column " + std::string(name.written) + " stands twice in the list",
                       name.position);
        columns.push_back(column);
    }
    if (insert.columns.empty())
        for (std::size_t index = 0; index < table.columns().size(); ++index)
            if (!table.columns()[index].identity) columns.push_back(static_cast<int>(index));
    return columns;
}

/// Defaults are written out by us: SQLite would store their text as it stands in the catalogue.
Fragment Translator::defaultOf(const Table& table, int column) {
    const std::string_view text = defaults_.keep(table.column(column).defaultText);
    Expression* const expression = Parser(text, defaults_).parseLoneExpression();
    return convertForColumn(value(*expression), table, column);
}

Translation Translator::insert(const InsertStatement& insert) {
    start();
    const Table& target = table(insert.table);
    const std::vector<int> given = insertColumns(insert, target);
    std::vector<int> defaulted;
    bool hasIdentity = false;
    bool givesIdentity = false;
    for (int column = 0; column < static_cast<int>(target.columns().size()); ++column) {
        const bool isGiven = std::find(given.begin(), given.end(), column) != given.end();
        hasIdentity = hasIdentity || target.column(column).identity;
        givesIdentity = givesIdentity || (isGiven && target.column(column).identity);
        if (!isGiven && !target.column(column).defaultText.empty()) defaulted.push_back(column);
    }
    std::string sql = "INSERT INTO " + target.sqlName() + " (";
    for (const int column : given)
        sql += quoteName(target.column(column).name) + ",";
    for (const int column : defaulted)
        sql += quoteName(target.column(column).name) + ",";
    sql.back() = ')';
    std::string tail;
    for (const int column : defaulted)
        tail += "," + defaultOf(target, column).sql;

    sql += insert.query != nullptr ? insertedQuery(*insert.query, target, given, tail)
                                   : insertedRows(insert.rows, target, given, tail);
    Translation translation = finish(std::move(sql));
    translation.writesVariable = insert.table.written.starts_with('@');
    if (hasIdentity) {
        translation.identityTable = foldName(target.name());
        translation.givesIdentity = givesIdentity;
    }
    return translation;
}

/// @param given the columns that the query's columns are for
/// @param tail what every row ends with
std::string Translator::insertedQuery(const Query& query, const Table& target, const std::vector<int>& given,
                                      const std::string& tail) {
    const QueryText text = queryText(query, true);
    requireCount(text.columns.size(), given.size(), query.position);
    std::string sql = " SELECT ";
    for (std::size_t index = 0; index < given.size(); ++index) {
        Fragment item{.sql = "s.c" + std::to_string(index + 1),
                      .type = text.columns[index].type,
                      .position = query.position};
        sql += (index == 0 ? "" : ",") + convertForColumn(std::move(item), target, given[index]).sql;
    }
    return sql + tail + " FROM (" + text.sql + ") s";
}

/// The same of rows of values.
std::string Translator::insertedRows(const List<List<Expression*>>& rows, const Table& target,
                                     const std::vector<int>& given, const std::string& tail) {
    std::string sql = " VALUES ";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        requireCount(rows[row].size(), given.size(), rows[row].front()->position);
        sql += row == 0 ? "(" : ",(";
        for (std::size_t index = 0; index < given.size(); ++index) {
            Fragment item = convertForColumn(value(*rows[row][index]), target, given[index]);
            sql += (index == 0 ? "" : ",") + item.sql;
        }
        sql += tail + ")";
    }
    return sql;
}

Translation Translator::update(const UpdateStatement& update) {
    start();
    return finish(update.from.empty() ? plainUpdate(update) : joinedUpdate(update));
}

std::string Translator::plainUpdate(const UpdateStatement& update) {
    Scope scope(nullptr);
    const EnteredScope inside(scope_, &scope);
    FromItem item;
    item.table = update.target;
    std::string sql = "UPDATE " + fromItemText(item, scope) + " SET ";
    const Table& target = table(update.target);
    const std::vector<int> columns = updatedColumns(update, target);
    for (std::size_t index = 0; index < columns.size(); ++index) {
        sql += (index == 0 ? "" : ",") + quoteName(target.column(columns[index]).name) + "=";
        sql += convertForColumn(value(*update.assignments[index].value), target, columns[index]).sql;
    }
    if (update.where != nullptr) sql += " WHERE " + condition(update.where, "WHERE").sql;
    return sql;
}

Translation Translator::edit(const std::string& tableName, const std::vector<Edit>& edits) {
    start();
    const Table* const target = catalogue_.find(foldName(tableName));
    if (target == nullptr) failUnknownName("There is no table " + tableName, base::DatabaseError::noPosition);
    std::string sql = "UPDATE " + target->sqlName() + " SET ";
    std::string answer = " RETURNING ";
    for (std::size_t index = 0; index < edits.size(); ++index) {
        const int column = edits[index].column;
        if (target->column(column).identity)
            failSyntax("The identity " + labelOf(*target, column) + " cannot be changed",
                       base::DatabaseError::noPosition);
        Fragment value{.sql = parameter(static_cast<int>(index)),
                       .type = edits[index].type,
                       .position = base::DatabaseError::noPosition};
        const std::string name = (index == 0 ? "" : ",") + quoteName(target->column(column).name);
        sql += name + "=" + convertForColumn(std::move(value), *target, column).sql;
        answer += name;
    }
    return finish(sql + " WHERE _rowid_=" + parameter(static_cast<int>(edits.size())) + answer);
}

/// The joined rows are found first, with the new values of each target row; then they are written.
std::string Translator::joinedUpdate(const UpdateStatement& update) {
    Scope scope(nullptr);
    const EnteredScope inside(scope_, &scope);
    const std::string from = fromText(update.from, update.where, scope);
    const Source* const source = scope.findSource(update.target.folded);
    if (source == nullptr || source->table == nullptr)
        failUnknownName("The table " + std::string(update.target.written) + " does not stand in FROM",
                        update.target.position);
    const Table& target = *source->table;
    std::string inner = "SELECT " + source->sqlAlias + "._rowid_ AS r";
    std::string sql = "UPDATE " + target.sqlName() + " AS u SET ";
    const std::vector<int> columns = updatedColumns(update, target);
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const std::string name = "c" + std::to_string(index + 1);
        Fragment item = convertForColumn(value(*update.assignments[index].value), target, columns[index]);
        inner += "," + item.sql + " AS " + name;
        sql += (index == 0 ? "" : ",") + quoteName(target.column(columns[index]).name) + "=s." + name;
    }
    inner += from;
    if (update.where != nullptr) inner += " WHERE " + condition(update.where, "WHERE").sql;
    return sql + " FROM (" + inner + ") AS s WHERE u._rowid_=s.r";
}

Translation Translator::remove(const DeleteStatement& deletion) {
    start();
    Scope scope(nullptr);
    const EnteredScope inside(scope_, &scope);
    FromItem item;
    item.table = deletion.table;
    std::string sql = "DELETE FROM " + fromItemText(item, scope);
    if (deletion.where != nullptr) sql += " WHERE " + condition(deletion.where, "WHERE").sql;
    return finish(std::move(sql));
}

} // namespace tellurix::embedded
