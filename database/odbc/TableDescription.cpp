#include "database/odbc/TableDescription.h"

#include "database/odbc/Session.h"
#include "module/base/text.h"

#include <algorithm>

namespace tellurix::odbc {

namespace {

/// The name as the server's catalogue has it: some write names that stand without quotes in one case.
std::string catalogued(std::string name, const Link& link, bool quoted) {
    if (quoted) return name;
    const SQLUSMALLINT kept = link.numberInfo(SQL_IDENTIFIER_CASE);
    if (kept == SQL_IC_UPPER) return base::toUpper(name);
    if (kept == SQL_IC_LOWER)
        std::ranges::transform(name, name.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        });
    return name;
}

int numberOf(const base::Value& value) {
    const auto* number = std::get_if<std::int64_t>(&value);
    return number == nullptr ? 0 : static_cast<int>(*number);
}

using Rows = std::vector<std::vector<base::Value>>;

/// The places of columns in the catalogue functions' answers, which the standard numbers from 1.
enum CatalogueColumn : std::size_t {
    columnName = 3,
    dataType = 4,
    columnSize = 6,
    decimalDigits = 8,
    rowColumnName = 1,
    pseudoColumn = 7
};

/// The functions of the catalogue, asked about one table.
class Catalogue {
public:
    Catalogue(Session& session, const EditedQuery& query, std::string_view told)
        : session_(session), query_(query), told_(told), schema_(query.schema) {
        if (schema_.empty()) schema_ = session_.schema();
    }

    std::vector<Column> columns() {
        Rows rows = columnRows();
        if (rows.empty() && query_.schema.empty()) {
            schema_.clear();
            rows = columnRows();
        }
        std::vector<Column> columns;
        for (const auto& row : rows)
            columns.push_back({textOf(row.at(columnName)),
                               static_cast<SQLSMALLINT>(numberOf(row.at(dataType))),
                               static_cast<SQLULEN>(std::max(numberOf(row.at(columnSize)), 0)),
                               static_cast<SQLSMALLINT>(numberOf(row.at(decimalDigits)))});
        return columns;
    }

    std::vector<std::string> key() {
        std::vector<std::string> names;
        for (const auto& row : ask([](SQLHSTMT handle, const Names&asked) {
                 return SQLPrimaryKeysW(handle, nullptr, 0, asked.schema, SQL_NTS, asked.table, SQL_NTS);
             }))
            names.push_back(textOf(row.at(columnName)));
        if (!names.empty()) return names;
        for (const auto& row : ask([](SQLHSTMT handle, const Names&asked) {
                 return SQLSpecialColumnsW(handle, SQL_BEST_ROWID, nullptr, 0, asked.schema, SQL_NTS,
                                           asked.table, SQL_NTS, SQL_SCOPE_CURROW, SQL_NULLABLE);
             }))
            if (numberOf(row.at(pseudoColumn)) != SQL_PC_PSEUDO)
                names.push_back(textOf(row.at(rowColumnName)));
        return names;
    }

private:
    struct Names {
        SQLWCHAR* schema; ///< null where any will do
        SQLWCHAR* table;
        SQLWCHAR* pattern; ///< where letters mean more than themselves
    };

    Rows columnRows() {
        return ask([](SQLHSTMT handle, const Names& asked) {
            return SQLColumnsW(handle, nullptr, 0, asked.schema, SQL_NTS, asked.pattern, SQL_NTS, nullptr, 0);
        });
    }

    template <typename Call>
    Rows ask(const Call& call) {
        return session_.send("", told_, true, [&](const std::unique_ptr<Statement>& statement) {
            const Link& link = session_.link();
            const std::string name = catalogued(query_.name, link, query_.quoted);
            std::u16string schema = wide(schema_);
            std::u16string table = wide(name);
            std::u16string pattern =
                wide(base::replaceAll(name, "_", link.textInfo(SQL_SEARCH_PATTERN_ESCAPE) + "_"));
            statement->ask([&](SQLHSTMT handle) {
                return call(handle, Names{schema.empty() ? nullptr : pointer(schema), pointer(table),
                                          pointer(pattern)});
            });
            return statement->rows(statement->columns());
        });
    }

    Session& session_;
    const EditedQuery& query_;
    std::string_view told_;
    std::string schema_;
};

} // namespace

const Column* TableDescription::column(std::string_view name) const {
    const std::string wanted = base::toUpper(name);
    const auto found = std::ranges::find_if(
        columns, [&](const Column& column) { return base::toUpper(column.name) == wanted; });
    return found == columns.end() ? nullptr : &*found;
}

std::shared_ptr<const TableDescription> TableDescription::of(Session& session, const EditedQuery& query,
                                                             std::string_view told) {
    if (session.isConnected()) {
        const auto known = session.link().tables().find(query.table);
        if (known != session.link().tables().end()) return known->second;
    }
    Catalogue catalogue{session, query, told};
    auto description = std::make_shared<TableDescription>();
    description->columns = catalogue.columns();
    // Of one that is not there the query itself says so, better than the catalogue does; the next time it may
    // be there.
    if (description->columns.empty()) return description;
    description->key = catalogue.key();
    session.link().tables()[query.table] = description;
    return description;
}

} // namespace tellurix::odbc
