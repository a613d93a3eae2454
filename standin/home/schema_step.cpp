#include "standin/home/schema_step.h"

#include "database/embedded/script.h"
#include "database_contents.h"
#include "module/base/StatementText.h"
#include "module/base/text.h"

#include <charconv>
#include <optional>
#include <set>
#include <string>

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
        if (error.category() == DatabaseErrorCategory::unknownName) return {};
        throw;
    }
}

/// The first word of a text that holds more, without the brackets around a name.
std::string firstWord(std::string_view text) {
    std::string word{text.substr(0, text.find(' '))};
    std::erase_if(word, [](char letter) { return letter == '[' || letter == ']'; });
    return word;
}

/// What the schema says of one table, in the form in which it is written there: a column a line.
void completeTable(base::Connection& connection, std::string_view batch) {
    constexpr std::string_view create = "CREATE TABLE ";
    constexpr std::string_view indent = "    ";
    std::string_view rest = batch.substr(batch.find(create) + create.size());
    const std::string table = firstWord(rest);
    const auto columns = columnsOf(connection, table);
    if (!columns) {
        connection.execute(batch);
        return;
    }
    while (rest.find('\n') != std::string_view::npos) {
        rest.remove_prefix(rest.find('\n') + 1);
        if (!rest.starts_with(indent)) continue;
        std::string_view line = rest.substr(indent.size(), rest.find('\n') - indent.size());
        const std::string column = firstWord(line);
        if (column == "CONSTRAINT" || columns->contains(base::toUpper(column))) continue;
        if (line.ends_with(',')) line.remove_suffix(1);
        connection.execute("ALTER TABLE " + table + " ADD " + std::string{line});
    }
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

void makeIndexes(base::Connection& connection, std::string_view batch) {
    while (!batch.empty()) {
        const std::string_view line = batch.substr(0, batch.find('\n'));
        if (line.starts_with("CREATE ")) makeIndex(connection, line);
        batch.remove_prefix(std::min(batch.size(), line.size() + 1));
    }
}

void complete(base::Connection& connection, std::string_view schema) {
    for (const std::string_view batch : embedded::splitBatches(schema)) {
        if (batch.find("CREATE TABLE ") != std::string_view::npos)
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

} // namespace tellurix::standin
