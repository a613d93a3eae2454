#pragma once

#include "module/base/Locale.h"
#include "module/base/database.h"
#include "module/base/date_time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tellurix::logistics {

/// The calendar of a contract's deliveries. Its weeks are those of ISO 8601 (`base::IsoWeek`); only what
/// the week boxes offer to choose from counts weeks in another way.

/// From when to when a contract is delivered, both days included.
struct DeliveryPeriod {
    base::Date from;
    base::Date to;
};
/// @return nothing while one of the two fields is NULL
std::optional<DeliveryPeriod> deliveryPeriodOf(const base::Value& from, const base::Value& to);

/// The name of a day of the week.
/// @param number 1 for Sunday to 7 for Saturday
std::string weekdayName(std::int64_t number, const base::Locale& locale);

} // namespace tellurix::logistics
