// Prints every row of every table of a workbench's database, in an order that only depends on what is
// in it, so that two databases can be compared line by line:
//     dump_database FILE
#include "common/StatementText.h"
#include "database_contents.h"
#include "embedded/Database.h"
#include "services/SystemClock.h"
#include "support/SampleDatabase.h"

#include <iostream>
#include <regex>
#include <set>

namespace tellurix::tests {
namespace {

std::set<std::string> tables() {
    const std::string schema{workbench::database_contents::file("schema.sql")};
    static const std::regex created{"CREATE TABLE (\\w+)"};
    std::set<std::string> names;
    for (std::sregex_iterator found{schema.begin(), schema.end(), created}, end; found != end; ++found)
        names.insert((*found)[1]);
    return names;
}

/// A field, with the kinds of values told apart: 1, '1' and NULL.
std::string literal(const common::Value& field) {
    const bool text = std::holds_alternative<std::string>(field);
    return text ? "'" + written(field) + "'" : written(field);
}

void dump(common::Connection& connection, const std::string& table) {
    common::StatementText query{"SELECT * FROM "};
    std::multiset<std::string> lines;
    for (auto row = connection.open(query.identifier(table).text()); !row->atEnd(); row->moveNext()) {
        std::string line;
        for (std::size_t i = 0; i < row->fieldCount(); ++i)
            line += " | " + literal(row->field(i));
        lines.insert(line);
    }
    for (const std::string& line : lines)
        std::cout << table << line << "\n";
    // Rows that are gone again have counted too.
    std::cout << table << " last key: " << firstRow(connection, "SELECT IDENT_CURRENT('" + table + "')")
              << "\n";
}

} // namespace
} // namespace tellurix::tests

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: dump_database FILE\n";
        return 2;
    }
    try {
        const tellurix::workbench::SystemClock clock;
        const auto connection = tellurix::embedded::Database{arguments[1], clock}.connect();
        for (const std::string& table : tellurix::tests::tables())
            tellurix::tests::dump(*connection, table);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
