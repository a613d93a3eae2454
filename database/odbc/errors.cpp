#include "database/odbc/errors.h"

#include "database/servers/server_errors.h"

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

/// By the SQLSTATE; where that says no more than "something is wrong with the statement", by the number of a
/// T-SQL server. Never by the text, which is in any language.
Category categoryOf(const Report& report) {
    const Category category = categoryOfState(report.state);
    if (category != Category::other) return category;
    return servers::categoryOfNumber(report.number);
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

base::DatabaseError databaseError(const Report& report, std::string_view statement) {
    std::string text = report.text.empty() ? "The driver reports a failure without a reason" : report.text;
    if (report.number != 0) text += " (" + report.state + ", " + std::to_string(report.number) + ")";
    return {categoryOf(report), text,        std::string(statement), base::DatabaseError::noPosition,
            report.number,      report.state};
}

} // namespace tellurix::odbc
