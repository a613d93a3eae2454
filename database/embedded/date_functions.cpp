#include "embedded/date_parts.h"
#include "embedded/scalar_call.h"

namespace tellurix::embedded {

namespace {

/// Code of the part, date.
void datePart(ScalarCall& call) {
    call.answer(partOfDate(static_cast<DatePart>(call.smallInteger(0)), fromMilliseconds(call.integer(1)),
                           call.session().dateFirst));
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

void day(ScalarCall& call) {
    call.answer(toMilliseconds(std::chrono::floor<std::chrono::days>(fromMilliseconds(call.integer(0)))));
}

} // namespace

void registerDateFunctions(sqlite3* connection, Session& session) {
    registerScalar<datePart, 2>(connection, "ts_datepart", 2, session);
    registerScalar<day, 1>(connection, "ts_day", 1, session);
    registerScalar<dateAdd, 3>(connection, "ts_dateadd", 4, session);
    registerScalar<dateDiff, 3>(connection, "ts_datediff", 3, session);
}

} // namespace tellurix::embedded
