#pragma once

#include "module/base/Locale.h"
#include "module/base/date_time.h"

#include <optional>
#include <string>
#include <string_view>

namespace tellurix::base {

/// Shows a date or a moment through a mask: "dd.mm.yyyy", "dddd" (name of the day), "hh:mm",
/// "hh:mm:ss", "dd.mm.yyyy hh:mm:ss", "dd.MM.yyyy hh:mm", "mmmm yyyy". "mm" is the month, after
/// "hh" the minute; "MM" is always the month. One letter instead of two leaves the zero in front
/// away. Other characters stand for themselves.
/// @throws std::invalid_argument for a field that is none, such as "ddd" or "yyy".
std::string formatDate(DateTime moment, std::string_view mask, const Locale& locale);
inline std::string formatDate(Date day, std::string_view mask, const Locale& locale) {
    return formatDate(startOf(day), mask, locale);
}

/// A day as every screen shows it and every box takes it: "dd.mm.yyyy".
std::string dateText(Date day);

/// Reads a date as a user types it, the day first: "5.6.2025", "05.06.25" (years 00 to 29 are
/// 2000 to 2029, 30 to 99 are 1930 to 1999), "05062025", "050625", also with "/" or "-" between
/// the parts, and "2025-06-05". Blanks around it are ignored.
/// @return nothing when the text is no day of the calendar, or one before 1753, which the database
/// cannot hold.
std::optional<Date> parseDate(std::string_view text);

} // namespace tellurix::base
