// Prints every row of every table of a workbench's database, in an order that only depends on what is
// in it, so that two databases can be compared line by line:
//     dump_database DATABASE
// DATABASE is a file, or "odbc:" and a connection string.
#include "module/base/StatementText.h"
#include "standin/services/values/SystemClock.h"
#include "tests/scenarios/named_database.h"
#include "tests/support/SampleDatabase.h"

#include <iostream>
#include <set>

namespace tellurix::tests {
namespace {

/// Moments of this day without their time: the screens write when they have changed a row.
std::string withoutTimes(std::string line, const std::string& today) {
    constexpr std::string_view time = " 00:00:00";
    for (std::size_t at = line.find(today + " "); at != std::string::npos; at = line.find(today + " ", at))
        line.erase(at += today.size(), time.size());
    return line;
}

void dump(base::Connection& connection, const std::string& table, const std::string& today) {
    base::StatementText query{"SELECT * FROM "};
    std::multiset<std::string> lines;
    for (auto row = connection.open(query.identifier(table).text()); !row->atEnd(); row->moveNext()) {
        lines.insert(withoutTimes(literalRow(*row), today));
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
        std::cerr << "usage: dump_database DATABASE\n";
        return 2;
    }
    try {
        const tellurix::standin::SystemClock clock;
        const auto connection = tellurix::tests::connectTo(arguments[1], clock);
        const std::string today = tellurix::tests::written(tellurix::base::startOf(clock.today()));
        for (const std::string& table : tellurix::tests::tableNames())
            tellurix::tests::dump(*connection, table, today);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
