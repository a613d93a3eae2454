// Prints every row of every table of a database file, in an order that only depends on what is in
// it, so that two databases can be compared line by line:
//     dump_database FILE
#include <sqlite3.h>

#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Connection = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

/// Calls back with each row's fields as SQL literals.
void query(sqlite3& connection, const std::string& text,
           const std::function<void(const std::vector<std::string>&)>& row) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(&connection, text.c_str(), -1, &prepared, nullptr) != SQLITE_OK)
        throw std::runtime_error{text + ": " + sqlite3_errmsg(&connection)};
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement{prepared, sqlite3_finalize};
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        std::vector<std::string> fields;
        for (int i = 0; i < sqlite3_column_count(prepared); ++i) {
            const auto* bytes = static_cast<const char*>(sqlite3_column_blob(prepared, i));
            fields.emplace_back(bytes == nullptr ? "" : bytes,
                                static_cast<std::size_t>(sqlite3_column_bytes(prepared, i)));
        }
        row(fields);
    }
}

std::string quotedName(const std::string& name) {
    return '"' + name + '"';
}

void dump(sqlite3& connection, const std::string& table) {
    std::string fields;
    std::string order;
    query(connection, "SELECT name FROM pragma_table_info('" + table + "')",
          [&](const std::vector<std::string>& column) {
              // Each value as a literal, so that the number 1, the text '1' and NULL are told apart.
              fields += (fields.empty() ? "quote(" : "||' | '||quote(") + quotedName(column[0]) + ")";
              order += (order.empty() ? "" : ",") + quotedName(column[0]) + " COLLATE BINARY";
          });
    query(connection, "SELECT " + fields + " FROM " + quotedName(table) + " ORDER BY " + order,
          [&](const std::vector<std::string>& row) { std::cout << table << ": " << row[0] << "\n"; });
}

} // namespace

int main(int count, char** arguments) {
    try {
        if (count != 2) throw std::runtime_error{"usage: dump_database FILE"};
        sqlite3* opened = nullptr;
        const int result = sqlite3_open_v2(arguments[1], &opened, SQLITE_OPEN_READONLY, nullptr);
        const Connection connection{opened, sqlite3_close};
        if (result != SQLITE_OK) throw std::runtime_error{sqlite3_errstr(result)};
        query(*connection, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name",
              [&](const std::vector<std::string>& table) { dump(*connection, table[0]); });
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
