#include "module/logistics/week_chart.h"

#include "module/base/text.h"
#include "module/logistics/plan/calendar_weeks.h"

#include <algorithm>

namespace tellurix::logistics {

using base::IsoWeek;

std::string weekName(const IsoWeek& week) {
    return digitsOf(week).week;
}

std::string weekNames(const std::vector<IsoWeek>& weeks) {
    constexpr std::size_t most = 8;
    const bool severalYears = !weeks.empty() && weeks.front().year != weeks.back().year;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(weeks.size(), most); ++i)
        names.push_back(weekName(weeks[i]) + (severalYears ? "/" + std::to_string(weeks[i].year) : ""));
    return base::joined(names, ", ") + (weeks.size() > most ? " …" : "");
}

std::optional<double> placeOf(base::Date day, const std::vector<IsoWeek>& weeks) {
    const IsoWeek week = base::isoWeekOf(day);
    const auto at = std::ranges::find_if(weeks, [&](const IsoWeek& w) { return w >= week; });
    if (at == weeks.end() || (at == weeks.begin() && *at != week)) return std::nullopt;
    const auto place = static_cast<double>(at - weeks.begin());
    if (*at != week) return place;
    constexpr double daysOfAWeek = 7;
    const auto past = std::chrono::local_days{day} - std::chrono::local_days{base::mondayOf(day)};
    return place + (static_cast<double>(past.count()) + 0.5) / daysOfAWeek;
}

} // namespace tellurix::logistics
