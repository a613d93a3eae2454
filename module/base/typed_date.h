#pragma once

#include "module/base/date_time.h"

#include <optional>
#include <string_view>

namespace tellurix::base {

/// Reads a day as a user types it who knows what day it is: all that `parseDate` reads, "15.1." or
/// "15.1" for a day of the present year, "h" or "heute" for today, "+7" and "-1" for days from today on.
/// @return nothing when the text means no day
std::optional<Date> typedDate(std::string_view text, Date today);

} // namespace tellurix::base
