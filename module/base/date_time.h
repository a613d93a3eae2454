#pragma once

#include <chrono>

namespace tellurix::base {

/// A day of the calendar, without a time.
using Date = std::chrono::year_month_day;

/// A day with its time of day as the database keeps it: local time without a zone, to the millisecond.
using DateTime = std::chrono::local_time<std::chrono::milliseconds>;

/// The calendar day of a moment.
constexpr Date dayOf(DateTime moment) {
    return Date{std::chrono::floor<std::chrono::days>(moment)};
}

/// Midnight at the start of a day.
constexpr DateTime startOf(Date day) {
    return DateTime{std::chrono::local_days{day}};
}

} // namespace tellurix::base
