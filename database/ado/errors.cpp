#include "database/ado/errors.h"

#include "database/servers/server_errors.h"

#include <oledberr.h>

#include <string>
#include <utility>

namespace tellurix::windows::ado {

namespace {

using Category = base::DatabaseErrorCategory;

Category categoryOfState(std::string_view state) {
    struct Rule {
        std::string_view start;
        Category category;
    };
    static constexpr Rule rules[] = {
        {"42S02", Category::unknownName}, {"42S22", Category::unknownName}, {"42", Category::syntax},
        {"22", Category::conversion},     {"23", Category::constraint},     {"40001", Category::locked},
        {"HYT00", Category::locked},      {"08", Category::connection},     {"28", Category::connection},
    };
    for (const Rule& rule : rules)
        if (state.starts_with(rule.start)) return rule.category;
    return Category::other;
}

/// What ADO and automation themselves report, by the numbers of their documentation.
Category categoryOfCode(HRESULT code) {
    constexpr auto ofAdo = [](int number) { return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number); };
    switch (code) {
    case ofAdo(3421): // the value is of the wrong type
    case DISP_E_OVERFLOW:
    case DISP_E_TYPEMISMATCH:
    case DB_E_CANTCONVERTVALUE:
    case DB_E_DATAOVERFLOW:
    case DB_E_ERRORSOCCURRED: // a field takes no such value
        return Category::conversion;
    case ofAdo(3265): // no such field
        return Category::unknownName;
    case ofAdo(3704): // the recordset or connection is closed
    case ofAdo(3709):
        return Category::connection;
    default:
        return Category::other;
    }
}

/// What a server said, taken out of the connection's Errors.
struct Report {
    std::string text;
    std::int32_t number = 0;
    std::string state;
};

Report reportOf(Dispatch& connection) {
    Report report;
    Dispatch errors(connection.get(L"Errors"));
    const std::int32_t count = errors.get(L"Count").integer();
    for (std::int32_t index = 0; index < count; ++index) {
        Dispatch error(errors.get(L"Item", {index}));
        // A warning stands beside the errors and is none.
        if (SUCCEEDED(error.get(L"Number").integer())) continue;
        if (report.text.empty()) {
            report.number = error.get(L"NativeError").integer();
            report.state = error.get(L"SQLState").text();
        } else {
            report.text += '\n';
        }
        report.text += error.get(L"Description").text();
    }
    errors.call(L"Clear");
    return report;
}

} // namespace

void forgetErrors(Dispatch& connection) {
    try {
        Dispatch(connection.get(L"Errors")).call(L"Clear");
    } catch (const AutomationError&) {
        // The statement itself will say what is wrong with the connection.
    }
}

base::DatabaseError databaseError(const AutomationError& error, Dispatch& connection,
                                  std::string_view statement) {
    Report report;
    // The Errors of ADO's own failures are those of an earlier statement.
    const int facility = HRESULT_FACILITY(error.code());
    const bool fromAdo = facility == FACILITY_CONTROL;
    if (!fromAdo && facility != FACILITY_DISPATCH) {
        try {
            report = reportOf(connection);
        } catch (const AutomationError&) {
            // A connection that cannot even tell its errors: the failed call's own text has to do.
            report = {};
        }
    }
    // The numbers of a server are more exact than its SQLSTATEs.
    Category category = servers::categoryOfNumber(report.number);
    if (category == Category::other) category = categoryOfState(report.state);
    if (category == Category::other) category = categoryOfCode(error.code());
    std::string text = report.text.empty() ? error.what() : std::move(report.text);
    const std::int32_t number = fromAdo ? HRESULT_CODE(error.code()) : report.number;
    if (number != 0) text += " (" + error.source() + ", " + std::to_string(number) + ")";
    return {category, text, std::string(statement), base::DatabaseError::noPosition, number, report.state};
}

} // namespace tellurix::windows::ado
