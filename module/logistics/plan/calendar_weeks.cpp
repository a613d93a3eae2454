#include "module/logistics/plan/calendar_weeks.h"

#include "module/base/date_format.h"
#include "module/base/field_text.h"

#include <algorithm>
#include <string_view>

namespace tellurix::logistics {

using base::Date;
using base::IsoWeek;
using std::chrono::days;
using std::chrono::local_days;

namespace {

constexpr int daysOfWeek = 7;
constexpr int weeksOfYear = 52;

/// Day 0 of the numbers that days are counted by.
constexpr Date dayZero{std::chrono::year{1899}, std::chrono::December, std::chrono::day{30}};

Date dayIn(int year, std::chrono::month month, unsigned day) {
    return Date{std::chrono::year{year}, month, std::chrono::day{day}};
}

std::string inDigits(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    text.insert(0, digits - std::min(digits, text.size()), '0');
    return text;
}

int yearOf(Date day) {
    return static_cast<int>(day.year());
}

/// How many weeks the generation makes for a year. The table is fixed: other years with a week 53, such as
/// 2015 and 2032, get none.
int generatedWeeksOf(int year) {
    return year == 2020 || year == 2026 ? weeksOfYear + 1 : weeksOfYear;
}

} // namespace

std::optional<DeliveryPeriod> deliveryPeriodOf(const base::Value& from, const base::Value& to) {
    const auto first = base::dayIn(from);
    const auto last = base::dayIn(to);
    if (!first || !last) return std::nullopt;
    return DeliveryPeriod{*first, *last};
}

Date FirstMonday(std::int16_t year) {
    // The week with the first Thursday is the one with 4 January.
    return base::mondayOf(dayIn(year, std::chrono::January, 4));
}

std::string strISOWeekNum(Date day, std::int16_t form) {
    const WeekDigits digits = digitsOf(base::isoWeekOf(day));
    const std::string shortYear = digits.year.substr(digits.year.size() - 2);
    switch (form) {
    case 0:
    case 1:
        return digits.week;
    case 2:
        return shortYear + digits.week;
    case 3:
        return "'" + shortYear + digits.week;
    case 4:
        return digits.year + digits.week;
    default:
        return {};
    }
}

WeekDigits digitsOf(const IsoWeek& week) {
    return {inDigits(week.year, 4), inDigits(week.week, 2)};
}

std::vector<IsoWeek> generatedWeeks(const DeliveryPeriod& period) {
    const IsoWeek last = base::isoWeekOf(period.to);
    std::vector<IsoWeek> weeks;
    for (IsoWeek week = base::isoWeekOf(period.from); week <= last;) {
        // A period may begin in a week 53 that is not generated.
        if (week.week <= generatedWeeksOf(week.year)) weeks.push_back(week);
        if (++week.week > generatedWeeksOf(week.year)) week = {week.year + 1, 1};
    }
    return weeks;
}

int weekFromSunday(Date day) {
    const local_days newYear{dayIn(yearOf(day), std::chrono::January, 1)};
    const auto sinceNewYear = static_cast<int>((local_days{day} - newYear).count());
    const auto sinceSunday = static_cast<int>(std::chrono::weekday{newYear}.c_encoding());
    return (sinceNewYear + sinceSunday) / daysOfWeek + 1;
}

OfferedWeeks offeredWeeks(const DeliveryPeriod& period, int year) {
    return {.first = year == yearOf(period.from) ? weekFromSunday(period.from) : 1,
            .last = weekFromSunday(year == yearOf(period.to) ? period.to
                                                             : dayIn(year, std::chrono::December, 31))};
}

std::string yearChoices(const DeliveryPeriod& period) {
    std::string query;
    for (int year = yearOf(period.from); year <= yearOf(period.to); ++year)
        query += (query.empty() ? "SELECT " : " UNION ALL SELECT ") + std::to_string(year) + " AS Jahr";
    return query;
}

std::string weekChoices(const DeliveryPeriod& period, int year) {
    const OfferedWeeks offered = offeredWeeks(period, year);
    std::string query;
    for (int week = offered.first; week <= offered.last; ++week)
        query += (query.empty() ? "SELECT '" : " UNION ALL SELECT '") + inDigits(week, 2) + "' AS Woche";
    return query;
}

bool yearLiesIn(const DeliveryPeriod& period, int year) {
    return year >= std::min(yearOf(period.from), base::isoWeekOf(period.from).year) &&
           year <= std::max(yearOf(period.to), base::isoWeekOf(period.to).year);
}

bool weekLiesIn(const DeliveryPeriod& period, const IsoWeek& week) {
    // 28 December is in the last week of its year.
    const int lastOfYear = base::isoWeekOf(dayIn(week.year, std::chrono::December, 28)).week;
    if (week.week >= 1 && week.week <= lastOfYear && week >= base::isoWeekOf(period.from) &&
        week <= base::isoWeekOf(period.to))
        return true;
    if (week.year < yearOf(period.from) || week.year > yearOf(period.to)) return false;
    const OfferedWeeks offered = offeredWeeks(period, week.year);
    return week.week >= offered.first && week.week <= offered.last;
}

std::string weeksText(const DeliveryPeriod& period) {
    const WeekDigits first = digitsOf(base::isoWeekOf(period.from));
    const WeekDigits last = digitsOf(base::isoWeekOf(period.to));
    return first.year + "/" + first.week + " - " + last.year + "/" + last.week;
}

std::string weekdayName(std::int64_t number, const base::Locale& locale) {
    // The days 1 to 7 are a Sunday to a Saturday.
    return base::formatDate(Date{local_days{dayZero} + days{number}}, "dddd", locale);
}

} // namespace tellurix::logistics
