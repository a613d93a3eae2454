#include "module/logistics/week_chart.h"

#include <algorithm>
#include <tuple>

namespace tellurix::logistics {

using base::IsoWeek;

std::string weekName(const IsoWeek& week) {
    const std::string digits = std::to_string(week.week);
    return digits.size() < 2 ? "0" + digits : digits;
}

std::string weekNames(const std::vector<IsoWeek>& weeks) {
    constexpr std::size_t most = 8;
    const bool severalYears =
        std::ranges::any_of(weeks, [&](const IsoWeek& week) { return week.year != weeks.front().year; });
    std::string names;
    for (std::size_t i = 0; i < std::min(weeks.size(), most); ++i) {
        if (i > 0) names += ", ";
        names += weekName(weeks[i]);
        if (severalYears) names += "/" + std::to_string(weeks[i].year);
    }
    return weeks.size() > most ? names + " …" : names;
}

bool earlier(const IsoWeek& week, const IsoWeek& other) {
    return std::tie(week.year, week.week) < std::tie(other.year, other.week);
}

std::optional<double> placeOf(base::Date day, const std::vector<IsoWeek>& weeks) {
    const IsoWeek week = base::isoWeekOf(day);
    const auto at = std::ranges::find_if(weeks, [&](const IsoWeek& w) { return !earlier(w, week); });
    if (at == weeks.end() || (at == weeks.begin() && *at != week)) return std::nullopt;
    const auto place = static_cast<double>(at - weeks.begin());
    if (*at != week) return place;
    constexpr double daysOfAWeek = 7;
    const auto past = std::chrono::local_days{day} - std::chrono::local_days{base::mondayOf(day)};
    return place + (static_cast<double>(past.count()) + 0.5) / daysOfAWeek;
}

} // namespace tellurix::logistics
