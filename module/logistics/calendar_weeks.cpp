#include "module/logistics/calendar_weeks.h"

#include "module/base/date_format.h"

namespace tellurix::logistics {

using base::Date;
using std::chrono::days;
using std::chrono::local_days;

namespace {

/// Day 0 of the numbers that days are counted by.
constexpr Date dayZero{std::chrono::year{1899}, std::chrono::December, std::chrono::day{30}};

} // namespace

std::optional<DeliveryPeriod> deliveryPeriodOf(const base::Value& from, const base::Value& to) {
    const auto* first = std::get_if<base::DateTime>(&from);
    const auto* last = std::get_if<base::DateTime>(&to);
    if (first == nullptr || last == nullptr) return std::nullopt;
    return DeliveryPeriod{base::dayOf(*first), base::dayOf(*last)};
}

std::string weekdayName(std::int64_t number, const base::Locale& locale) {
    // The days 1 to 7 are a Sunday to a Saturday.
    return base::formatDate(Date{local_days{dayZero} + days{number}}, "dddd", locale);
}

} // namespace tellurix::logistics
