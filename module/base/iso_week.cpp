#include "module/base/iso_week.h"

namespace tellurix::base {

using std::chrono::days;
using std::chrono::local_days;

IsoWeek isoWeekOf(Date day) {
    constexpr int daysOfWeek = 7;
    const local_days thursday = local_days{mondayOf(day)} + days{3};
    const std::chrono::year year = Date{thursday}.year();
    const local_days newYear{year / std::chrono::January / 1};
    return {static_cast<int>(year), static_cast<int>((thursday - newYear).count()) / daysOfWeek + 1};
}

Date mondayOf(Date day) {
    const local_days date{day};
    return Date{date - days{std::chrono::weekday{date}.iso_encoding() - 1}};
}

} // namespace tellurix::base
