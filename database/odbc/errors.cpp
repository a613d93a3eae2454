#include "database/odbc/errors.h"

#include <algorithm>

namespace tellurix::odbc {

namespace {

using Category = base::DatabaseErrorCategory;

/// The standard's states, and those of servers that divide its classes further. The longer start stands
/// first.
Category categoryOfState(std::string_view state) {
    struct Rule {
        std::string_view start;
        Category category;
    };
    static constexpr Rule rules[] = {
        {"42S02", Category::unknownName}, {"42S22", Category::unknownName}, {"42P01", Category::unknownName},
        {"42703", Category::unknownName}, {"42702", Category::unknownName}, {"42804", Category::conversion},
        {"25006", Category::readOnly},    {"22", Category::conversion},     {"23", Category::constraint},
        {"42000", Category::other},       {"42501", Category::other},       {"42", Category::syntax},
        {"40001", Category::locked},      {"40P01", Category::locked},      {"55P03", Category::locked},
        {"HYT00", Category::locked},      {"08", Category::connection},     {"28", Category::connection},
        {"HYT01", Category::connection},  {"57P0", Category::connection},   {"53100", Category::storageFull},
    };
    for (const Rule& rule : rules)
        if (state.starts_with(rule.start)) return rule.category;
    return Category::other;
}

/// The numbers of T-SQL servers.
Category categoryOfNumber(int number) {
    switch (number) {
    case 102: // incorrect syntax near …
    case 105: // unclosed quotation mark
    case 156: // incorrect syntax near a keyword
    case 170:
    case 319:
        return Category::syntax;
    case 207:  // column
    case 208:  // table
    case 911:  // database
    case 3701: // what is to be dropped
    case 4104: // a column with its table
        return Category::unknownName;
    case 220: // arithmetic overflow
    case 232:
    case 241: // date from a text
    case 242: // date out of range
    case 244:
    case 245: // number from a text
    case 248:
    case 2628: // text too long
    case 8114:
    case 8115:
    case 8134: // division by zero
    case 8152: // text too long
        return Category::conversion;
    case 515:  // NOT NULL
    case 547:  // foreign key or check
    case 2601: // unique index
    case 2627: // key
        return Category::constraint;
    case 1204:
    case 1205: // deadlock
    case 1222: // lock timeout
        return Category::locked;
    case 4060:  // no such database
    case 18456: // login failed
        return Category::connection;
    case 1101: // the file group is full
    case 1105:
    case 9002: // the log is full
        return Category::storageFull;
    case 3906: // the database is read-only
        return Category::readOnly;
    default:
        return Category::other;
    }
}

} // namespace

Report reportOf(SQLSMALLINT handleType, SQLHANDLE handle) {
    Report report;
    std::u16string text(2048, u'\0');
    for (SQLSMALLINT record = 1;; ++record) {
        std::u16string state(5, u'\0');
        SQLINTEGER number = 0;
        SQLSMALLINT length = 0;
        const SQLRETURN result = SQLGetDiagRecW(handleType, handle, record, pointer(state), &number,
                                                pointer(text), shortLength(text), &length);
        if (!SQL_SUCCEEDED(result)) return report;
        if (record == 1) {
            report.state = narrow(state);
            report.number = number;
        } else {
            report.text += '\n';
        }
        const auto held = std::min(static_cast<std::size_t>(length), text.size() - 1);
        report.text += narrow(std::u16string_view{text}.substr(0, held));
    }
}

Category categoryOf(const Report& report) {
    const Category category = categoryOfState(report.state);
    if (category != Category::other) return category;
    return categoryOfNumber(report.number);
}

base::DatabaseError databaseError(const Report& report, std::string_view statement) {
    std::string text = report.text.empty() ? "The driver reports a failure without a reason" : report.text;
    if (report.number != 0) text += " (" + report.state + ", " + std::to_string(report.number) + ")";
    return {categoryOf(report), text,        std::string(statement), base::DatabaseError::noPosition,
            report.number,      report.state};
}

} // namespace tellurix::odbc
