#pragma once

#include "module/base/Locale.h"
#include "module/base/database.h"
#include "module/base/date_time.h"
#include "module/base/iso_week.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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

/// The Monday that begins week 1 of a year.
base::Date FirstMonday(std::int16_t year);

/// The week of a day as a text.
/// @param form 0 or 1 "05", 2 "2405", 3 "'2405" (a text for spreadsheets), 4 "202405"; any other is empty
std::string strISOWeekNum(base::Date day, std::int16_t form);

/// A week and its year in so many digits that they sort as texts: {"2024", "05"}.
struct WeekDigits {
    std::string year;
    std::string week;
};
WeekDigits digitsOf(const base::IsoWeek& week);

/// The weeks that the generation makes for a delivery period, in their order; none for a period that
/// ends before it begins.
std::vector<base::IsoWeek> generatedWeeks(const DeliveryPeriod& period);

/// The week of a day as the week boxes count: weeks begin on Sunday, week 1 is that of 1 January.
int weekFromSunday(base::Date day);

/// The weeks of a year that the week box offers, as that box counts them.
struct OfferedWeeks {
    int first = 1;
    int last = 53;
};
OfferedWeeks offeredWeeks(const DeliveryPeriod& period, int year);
/// What the pickers of the year box and of the week box are asked for; empty where there is nothing to offer.
std::string yearChoices(const DeliveryPeriod& period);
std::string weekChoices(const DeliveryPeriod& period, int year);

/// Whether a year, or a week of one, lies in the period, by either way of counting weeks: what a picker
/// offers is accepted, and so is what the generation makes.
bool yearLiesIn(const DeliveryPeriod& period, int year);
bool weekLiesIn(const DeliveryPeriod& period, const base::IsoWeek& week);
/// First and last week: "2024/48 - 2025/05".
std::string weeksText(const DeliveryPeriod& period);

/// The name of a day of the week.
/// @param number 1 for Sunday to 7 for Saturday
std::string weekdayName(std::int64_t number, const base::Locale& locale);

} // namespace tellurix::logistics
