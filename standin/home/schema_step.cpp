#include "standin/home/schema_step.h"

#include "database/embedded/script.h"
#include "database_contents.h"
#include "module/base/StatementText.h"
#include "module/base/text.h"
#include "standin/home/database_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tellurix::standin {

namespace {

using base::DatabaseErrorCategory;

int numberIn(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The schema says its version itself.
int presentVersion(std::string_view schema) {
    constexpr std::string_view mark = "('SCHEMA', '";
    return numberIn(schema.substr(schema.find(mark) + mark.size()));
}

/// @return nothing when the database is not ours
std::optional<int> versionOf(base::Connection& connection) {
    try {
        const auto setting = connection.open("SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA'");
        return setting->atEnd() ? 0 : numberIn(setting->text("VALUE"));
    } catch (const base::DatabaseError& error) {
        if (error.category() == DatabaseErrorCategory::unknownName) return {};
        throw;
    }
}

/// Some servers have one number and one state for all that they refuse; then their catalogue is asked.
bool isMissing(base::Connection& connection, const std::string& table, const base::DatabaseError& error) {
    if (error.category() == DatabaseErrorCategory::unknownName) return true;
    if (error.category() != DatabaseErrorCategory::other) return false;
    base::StatementText query{"SELECT COUNT(*) AS N FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = '"};
    query.identifier(table).fixed("'");
    try {
        return connection.open(query.text())->integer("N") == 0;
    } catch (const base::DatabaseError&) {
        return false;
    }
}

/// In capital letters; nothing when there is no such table.
std::optional<std::set<std::string>> columnsOf(base::Connection& connection, const std::string& table) {
    base::StatementText query{"SELECT * FROM "};
    query.identifier(table).fixed(" WHERE 1 = 0");
    try {
        const auto rows = connection.open(query.text());
        std::set<std::string> columns;
        for (std::size_t i = 0; i < rows->fieldCount(); ++i)
            columns.insert(base::toUpper(rows->fieldName(i)));
        return columns;
    } catch (const base::DatabaseError& error) {
        if (isMissing(connection, table, error)) return {};
        throw;
    }
}

/// The first word of a text that holds more, without the brackets around a name.
std::string firstWord(std::string_view text) {
    std::string word{text.substr(0, text.find(' '))};
    std::erase_if(word, [](char letter) { return letter == '[' || letter == ']'; });
    return word;
}

constexpr std::string_view createTable = "CREATE TABLE ";

/// The name of the table that a batch of the schema makes; empty when it makes none.
std::string tableOf(std::string_view batch) {
    const std::size_t create = batch.find(createTable);
    return create == std::string_view::npos ? std::string{}
                                            : firstWord(batch.substr(create + createTable.size()));
}

/// The statements that add what a table lacks of what the schema says of it. There it is written a column a
/// line.
std::vector<std::string> lackingColumns(std::string_view batch, const std::set<std::string>& present) {
    constexpr std::string_view indent = "    ";
    std::vector<std::string> statements;
    std::string_view rest = batch.substr(batch.find(createTable));
    while (rest.find('\n') != std::string_view::npos) {
        rest.remove_prefix(rest.find('\n') + 1);
        if (!rest.starts_with(indent)) continue;
        std::string_view line = rest.substr(indent.size(), rest.find('\n') - indent.size());
        const std::string column = firstWord(line);
        if (column == "CONSTRAINT" || present.contains(base::toUpper(column))) continue;
        if (line.ends_with(',')) line.remove_suffix(1);
        statements.push_back("ALTER TABLE " + tableOf(batch) + " ADD " + std::string{line});
    }
    return statements;
}

void completeTable(base::Connection& connection, std::string_view batch) {
    const auto columns = columnsOf(connection, tableOf(batch));
    if (!columns) {
        connection.execute(batch);
        return;
    }
    for (const std::string& statement : lackingColumns(batch, *columns))
        connection.execute(statement);
}

/// An index that is there already is refused, and so is one whose rule the rows do not keep: it makes
/// nothing but speed, and must keep nobody from working.
void makeIndex(base::Connection& connection, std::string_view statement) {
    try {
        connection.execute(statement);
    } catch (const base::DatabaseError& error) {
        if (error.category() != DatabaseErrorCategory::other &&
            error.category() != DatabaseErrorCategory::constraint)
            throw;
    }
}

/// The statements of a batch that makes indexes, one a line.
std::vector<std::string_view> indexesOf(std::string_view batch) {
    std::vector<std::string_view> statements;
    while (!batch.empty()) {
        const std::string_view line = batch.substr(0, batch.find('\n'));
        if (line.starts_with("CREATE ")) statements.push_back(line);
        batch.remove_prefix(std::min(batch.size(), line.size() + 1));
    }
    return statements;
}

void makeIndexes(base::Connection& connection, std::string_view batch) {
    for (const std::string_view statement : indexesOf(batch))
        makeIndex(connection, statement);
}

void complete(base::Connection& connection, std::string_view schema) {
    for (const std::string_view batch : embedded::splitBatches(schema)) {
        if (!tableOf(batch).empty())
            completeTable(connection, batch);
        else if (batch.find("INDEX ") != std::string_view::npos)
            makeIndexes(connection, batch);
    }
    connection.execute("IF NOT EXISTS(SELECT NAME FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA')"
                       " INSERT INTO WORKBENCH_SETTING (NAME) VALUES ('SCHEMA')");
    base::StatementText version{"UPDATE WORKBENCH_SETTING SET VALUE = '"};
    version.number(presentVersion(schema)).fixed("' WHERE NAME = 'SCHEMA'");
    connection.execute(version.text());
}

} // namespace

void addWhatIsMissing(base::Connection& connection) {
    const std::string_view schema = database_contents::file("schema.sql");
    const auto version = versionOf(connection);
    if (!version || *version >= presentVersion(schema)) return;
    try {
        complete(connection, schema);
    } catch (const base::DatabaseError& error) {
        if (error.category() != DatabaseErrorCategory::readOnly) throw;
    }
}

namespace {

/// Whether a table holds anything but what comes with it.
bool holdsRows(base::Connection& connection, const std::string& table) {
    const char* ours = table == "WORKBENCH_SETTING" ? " WHERE NAME <> 'SCHEMA'" : "";
    return connection.open("SELECT COUNT(*) FROM " + table + ours)->integer(0) > 0;
}

} // namespace

bool hasWorkbenchTables(base::Connection& connection) {
    return columnsOf(connection, "WORKBENCH_SETTING").has_value();
}

std::vector<std::string> prepare(base::Connection& connection, bool withSample) {
    std::vector<std::string> made;
    std::vector<std::string> present;
    std::vector<std::string> said;
    for (const std::string_view batch : embedded::splitBatches(database_contents::file("schema.sql"))) {
        const std::string table = tableOf(batch);
        const auto isMade = [&](const std::string& name) {
            return std::ranges::find(made, name) != made.end();
        };
        if (table.empty()) {
            for (const std::string_view index : indexesOf(batch))
                if (isMade(firstWord(index.substr(index.find(" ON ") + std::string_view{" ON "}.size()))))
                    connection.execute(index);
            if (batch.find("INSERT INTO WORKBENCH_SETTING") != std::string_view::npos &&
                isMade("WORKBENCH_SETTING"))
                connection.execute(batch);
        } else if (withSample || table.starts_with("WORKBENCH_")) {
            const auto columns = columnsOf(connection, table);
            if (columns) {
                present.push_back(table);
                for (const std::string& statement : lackingColumns(batch, *columns))
                    said.push_back("lacking, and left to you: " + statement);
            } else {
                connection.execute(batch);
                made.push_back(table);
            }
        }
    }
    const bool isWhole = said.empty();
    if (!made.empty()) said.push_back("made: " + base::joined(made, ", "));
    if (!present.empty())
        said.push_back("there already, and left as they are: " + base::joined(present, ", "));
    if (!withSample) return said;
    const bool fits = isWhole && std::ranges::none_of(present, [&](const auto& table) {
                          return holdsRows(connection, table);
                      });
    if (fits) {
        fillWithSample(connection);
        said.emplace_back("filled with the sample trade");
    } else {
        said.emplace_back("the sample trade was not put in: it goes into whole and empty tables alone");
    }
    return said;
}

} // namespace tellurix::standin
