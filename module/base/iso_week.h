#pragma once

#include "module/base/date_time.h"

#include <compare>

namespace tellurix::base {

/// A week from Monday to Sunday under the number that ISO 8601 gives it. It belongs to the year of its
/// Thursday: the last days of December can lie in the first week of the next year, the first ones of
/// January in the last week of the year before.
struct IsoWeek {
    int year = 0;
    int week = 0; ///< 1 to 53

    friend auto operator<=>(const IsoWeek&, const IsoWeek&) = default;
};

IsoWeek isoWeekOf(Date day);

/// The Monday of the week that a day lies in.
Date mondayOf(Date day);

} // namespace tellurix::base
