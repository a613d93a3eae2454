#pragma once

#include "module/base/date_time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// In which order a date text such as 05.06.2025 names its parts (SET DATEFORMAT).
enum class DateOrder : std::uint8_t { dayMonthYear, monthDayYear, yearMonthDay };

/// Reads a date text as T-SQL does: "05.06.2025" (also with "/" or "-") in the given order,
/// "20250605" and "2025-06-05T14:30:00" in any order, the first two also with a time "14:30",
/// "14:30:05" or "14:30:05.125" after a blank. Years of two digits are 1950 to 2049.
/// @return nothing when it is no such text, no day of the calendar, or before 1753
std::optional<base::DateTime> readDate(std::string_view text, DateOrder order);

/// Writes a date in one of CONVERT's styles.
/// @return nothing when the style is not supported
std::optional<std::string> writeDate(base::DateTime moment, int style);

/// Reads a date text in one of CONVERT's styles, which says in which order the parts stand.
/// @return nothing when the text is no date in this style
std::optional<base::DateTime> readStyledDate(std::string_view text, int style);

/// Whether `writeDate` and `readStyledDate` know the style.
bool isDateStyle(int style);

constexpr base::DateTime fromMilliseconds(std::int64_t milliseconds) {
    return base::DateTime{std::chrono::milliseconds{milliseconds}};
}

constexpr std::int64_t toMilliseconds(base::DateTime moment) {
    return moment.time_since_epoch().count();
}

/// The first and the last moment that a datetime column holds.
constexpr base::DateTime firstMoment{std::chrono::local_days{std::chrono::year{1753} / 1 / 1}};
constexpr base::DateTime lastMoment{std::chrono::local_days{std::chrono::year{9999} / 12 / 31} +
                                    std::chrono::days{1} - std::chrono::milliseconds{1}};

} // namespace tellurix::embedded
