#include "database/embedded/values/date_parts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tellurix::embedded {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;
using std::chrono::months;
using std::chrono::weekday;
using std::chrono::years;

constexpr int daysOfWeek = 7;

int isoWeekday(local_days day) {
    return static_cast<int>(weekday{day}.iso_encoding());
}

/// The week belongs to the year of its Thursday.
std::int64_t isoWeekOf(local_days day) {
    const local_days thursday = day + days{4 - isoWeekday(day)};
    const base::Date date{thursday};
    return (thursday - local_days{date.year() / 1 / 1}).count() / daysOfWeek + 1;
}

std::int64_t monthsSinceYearZero(const base::Date& date) {
    return std::int64_t{static_cast<int>(date.year())} * 12 + static_cast<unsigned>(date.month()) - 1;
}

base::DateTime plusMonths(base::DateTime moment, std::int64_t count) {
    const auto midnight = floor<days>(moment);
    const base::Date date{midnight};
    const std::chrono::year_month target = date.year() / date.month() + months{count};
    const base::Date last = target / std::chrono::last;
    const base::Date sum = target / std::min(date.day(), last.day());
    return base::startOf(sum) + (moment - midnight);
}

std::optional<std::chrono::milliseconds> lengthOf(DatePart part) {
    switch (part) {
    case DatePart::day:
    case DatePart::dayOfYear:
    case DatePart::weekday:
        return days{1};
    case DatePart::week:
    case DatePart::isoWeek:
        return days{daysOfWeek};
    case DatePart::hour:
        return std::chrono::hours{1};
    case DatePart::minute:
        return std::chrono::minutes{1};
    case DatePart::second:
        return std::chrono::seconds{1};
    case DatePart::millisecond:
        return std::chrono::milliseconds{1};
    default:
        return std::nullopt;
    }
}

int monthsIn(DatePart part) {
    return part == DatePart::year ? 12 : part == DatePart::quarter ? 3 : 1;
}

} // namespace

std::optional<DatePart> datePartNamed(std::string_view word) {
    using Entry = std::pair<std::string_view, DatePart>;
    static constexpr std::array<Entry, 30> entries{{
        {"year", DatePart::year},
        {"yy", DatePart::year},
        {"yyyy", DatePart::year},
        {"quarter", DatePart::quarter},
        {"qq", DatePart::quarter},
        {"q", DatePart::quarter},
        {"month", DatePart::month},
        {"mm", DatePart::month},
        {"m", DatePart::month},
        {"dayofyear", DatePart::dayOfYear},
        {"dy", DatePart::dayOfYear},
        {"day", DatePart::day},
        {"dd", DatePart::day},
        {"d", DatePart::day},
        {"iso_week", DatePart::isoWeek},
        {"isowk", DatePart::isoWeek},
        {"isoww", DatePart::isoWeek},
        {"week", DatePart::week},
        {"wk", DatePart::week},
        {"ww", DatePart::week},
        {"weekday", DatePart::weekday},
        {"dw", DatePart::weekday},
        {"hour", DatePart::hour},
        {"hh", DatePart::hour},
        {"minute", DatePart::minute},
        {"mi", DatePart::minute},
        {"second", DatePart::second},
        {"ss", DatePart::second},
        {"millisecond", DatePart::millisecond},
        {"ms", DatePart::millisecond},
    }};
    const auto* const found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.first == word; });
    return found == entries.end() ? std::nullopt : std::optional(found->second);
}

bool canRead(DatePart part) {
    // The plain week counts from the first of January by DATEFIRST; nobody here means that.
    return part != DatePart::week;
}

bool canAdd(DatePart part) {
    return part != DatePart::isoWeek;
}

bool canCount(DatePart part) {
    return part != DatePart::isoWeek && part != DatePart::week && part != DatePart::weekday;
}

std::int64_t partOfDate(DatePart part, base::DateTime moment, int dateFirst) {
    const auto midnight = floor<days>(moment);
    const base::Date date{midnight};
    const std::chrono::hh_mm_ss time{moment - midnight};
    switch (part) {
    case DatePart::year:
        return static_cast<int>(date.year());
    case DatePart::quarter:
        return (static_cast<unsigned>(date.month()) - 1) / 3 + 1;
    case DatePart::month:
        return static_cast<unsigned>(date.month());
    case DatePart::dayOfYear:
        return (midnight - local_days{date.year() / 1 / 1}).count() + 1;
    case DatePart::day:
        return static_cast<unsigned>(date.day());
    case DatePart::week:
    case DatePart::isoWeek:
        return isoWeekOf(midnight);
    case DatePart::weekday:
        return (isoWeekday(midnight) - dateFirst + daysOfWeek) % daysOfWeek + 1;
    case DatePart::hour:
        return time.hours().count();
    case DatePart::minute:
        return time.minutes().count();
    case DatePart::second:
        return time.seconds().count();
    case DatePart::millisecond:
        return time.subseconds().count();
    }
    return 0;
}

std::string nameOfPart(DatePart part, base::DateTime moment) {
    static constexpr std::array<const char*, 12> months{"Januar",    "Februar", "März",     "April",
                                                        "Mai",       "Juni",    "Juli",     "August",
                                                        "September", "Oktober", "November", "Dezember"};
    static constexpr std::array<const char*, daysOfWeek> weekdays{
        "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"};
    constexpr int monday = 1;
    const std::int64_t number = partOfDate(part, moment, monday);
    if (part == DatePart::month) return months.at(static_cast<std::size_t>(number - 1));
    if (part == DatePart::weekday) return weekdays.at(static_cast<std::size_t>(number - 1));
    return std::to_string(number);
}

std::optional<base::DateTime> addToDate(DatePart part, std::int64_t count, base::DateTime moment) {
    // Beyond this no date is left, and the arithmetic below cannot overflow.
    constexpr std::int64_t mostMilliseconds = std::int64_t{9000} * 366 * 24 * 3600 * 1000;
    base::DateTime sum;
    if (const auto length = lengthOf(part)) {
        if (count > mostMilliseconds / length->count() || count < -mostMilliseconds / length->count())
            return std::nullopt;
        sum = moment + *length * count;
    } else {
        constexpr std::int64_t mostMonths = 108'000;
        const std::int64_t each = monthsIn(part);
        if (count > mostMonths / each || count < -mostMonths / each) return std::nullopt;
        sum = plusMonths(moment, count * each);
    }
    if (sum < firstMoment || sum > lastMoment) return std::nullopt;
    return sum;
}

std::int64_t dateDifference(DatePart part, base::DateTime from, base::DateTime to) {
    if (const auto length = lengthOf(part)) {
        const auto borders = [&](base::DateTime moment) {
            const std::int64_t value = toMilliseconds(moment);
            const std::int64_t whole = value / length->count();
            return value % length->count() < 0 ? whole - 1 : whole;
        };
        return borders(to) - borders(from);
    }
    const std::int64_t each = monthsIn(part);
    return monthsSinceYearZero(base::Date{floor<days>(to)}) / each -
           monthsSinceYearZero(base::Date{floor<days>(from)}) / each;
}

} // namespace tellurix::embedded
