#pragma once

#include "database/embedded/values/date_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// What DATEPART reads, DATEADD adds and DATEDIFF counts.
enum class DatePart : std::uint8_t {
    year,
    quarter,
    month,
    dayOfYear,
    day,
    isoWeek,
    week,
    weekday,
    hour,
    minute,
    second,
    millisecond
};

/// The part that a word names (folded), e.g. "isowk" or "dd".
std::optional<DatePart> datePartNamed(std::string_view word);

/// Which function takes which part: not all make sense or are known everywhere.
bool canRead(DatePart part);
bool canAdd(DatePart part);
bool canCount(DatePart part);

/// @param dateFirst first day of the week, 1 = Monday; only `weekday` asks for it
std::int64_t partOfDate(DatePart part, base::DateTime moment, int dateFirst);

/// What DATENAME answers: German names of months and weekdays, numbers for all else.
std::string nameOfPart(DatePart part, base::DateTime moment);

/// @return nothing when the sum leaves the years that a date can have. A month that is too short
///         for the day gives its last day.
std::optional<base::DateTime> addToDate(DatePart part, std::int64_t count, base::DateTime moment);

/// How many borders of the part lie between the two: years from 31.12. to 1.1. are 1.
std::int64_t dateDifference(DatePart part, base::DateTime from, base::DateTime to);

} // namespace tellurix::embedded
