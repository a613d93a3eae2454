#include "module/base/typed_date.h"

#include "module/base/date_format.h"
#include "module/base/text.h"
#include "module/base/whole_number.h"

#include <cstdint>
#include <string>

namespace tellurix::base {

namespace {

/// A number of days that reaches into another year, and no further than a plan does.
constexpr std::uint32_t mostDays = 9999;

std::optional<Date> daysFrom(Date today, std::string_view text) {
    const auto days = wholeNumber<std::uint32_t>(text.substr(1));
    if (!days || *days > mostDays) return std::nullopt;
    const std::chrono::days distance{static_cast<int>(*days)};
    const std::chrono::local_days from{today};
    return Date{text.front() == '-' ? from - distance : from + distance};
}

} // namespace

std::optional<Date> typedDate(std::string_view typed, Date today) {
    const std::string_view text = trim(typed);
    if (text.empty()) return std::nullopt;
    if (const std::string word = toUpper(text); word == "H" || word == "HEUTE") return today;
    if (text.front() == '+' || text.front() == '-') return daysFrom(today, text);
    if (const auto date = parseDate(text)) return date;
    std::string withYear{text};
    if (!withYear.ends_with('.')) withYear += '.';
    return parseDate(withYear + std::to_string(static_cast<int>(today.year())));
}

} // namespace tellurix::base
