#include "database/embedded/sqlite/scalar_call.h"
#include "database/embedded/values/date_parts.h"
#include "database/embedded/values/decimal_units.h"

#include <cmath>

namespace tellurix::embedded {

namespace {

/// Code of the part, date.
void datePart(ScalarCall& call) {
    call.answer(partOfDate(static_cast<DatePart>(call.smallInteger(0)), fromMilliseconds(call.integer(1)),
                           call.session().options.dateFirst));
}

/// Code of the part, number, date, position.
void dateAdd(ScalarCall& call) {
    const auto sum = addToDate(static_cast<DatePart>(call.smallInteger(0)), call.integer(1),
                               fromMilliseconds(call.integer(2)));
    if (!sum) failConversion("DATEADD leaves the years 1753 to 9999", call.position(3));
    call.answer(toMilliseconds(*sum));
}

/// Code of the part, from, to.
void dateDiff(ScalarCall& call) {
    call.answer(dateDifference(static_cast<DatePart>(call.smallInteger(0)), fromMilliseconds(call.integer(1)),
                               fromMilliseconds(call.integer(2))));
}

/// Code of the part, date.
void dateName(ScalarCall& call) {
    call.answer(nameOfPart(static_cast<DatePart>(call.smallInteger(0)), fromMilliseconds(call.integer(1))));
}

constexpr std::int64_t millisecondsOfDay = std::chrono::milliseconds{std::chrono::days{1}}.count();

void answerShifted(ScalarCall& call, std::optional<std::int64_t> milliseconds) {
    const auto limit = toMilliseconds(lastMoment) - toMilliseconds(firstMoment);
    if (milliseconds && *milliseconds <= limit && *milliseconds >= -limit) {
        const auto sum = fromMilliseconds(call.integer(0) + *milliseconds);
        if (sum >= firstMoment && sum <= lastMoment) return call.answer(toMilliseconds(sum));
    }
    failConversion("The date leaves the years 1753 to 9999", call.position(call.count() - 1));
}

/// Date, days in units, their scale, position.
void shiftDate(ScalarCall& call) {
    answerShifted(call, productOfUnits(call.integer(1), call.smallInteger(2), millisecondsOfDay, 0, 0));
}

/// Date, days, position.
void shiftDateByFloat(ScalarCall& call) {
    constexpr double mostDays = 4'000'000;
    const double days = call.floating(1);
    answerShifted(call, std::abs(days) < mostDays
                            ? std::optional(std::llround(days * static_cast<double>(millisecondsOfDay)))
                            : std::nullopt);
}

void day(ScalarCall& call) {
    call.answer(toMilliseconds(std::chrono::floor<std::chrono::days>(fromMilliseconds(call.integer(0)))));
}

} // namespace

void registerDateFunctions(sqlite3* connection, SqlSession& session) {
    registerScalar<datePart, 2>(connection, "ts_datepart", 2, session);
    registerScalar<dateName, 2>(connection, "ts_datename", 2, session);
    registerScalar<shiftDate, 2>(connection, "ts_shift", 4, session);
    registerScalar<shiftDateByFloat, 2>(connection, "ts_fshift", 3, session);
    registerScalar<day, 1>(connection, "ts_day", 1, session);
    registerScalar<dateAdd, 3>(connection, "ts_dateadd", 4, session);
    registerScalar<dateDiff, 3>(connection, "ts_datediff", 3, session);
}

} // namespace tellurix::embedded
