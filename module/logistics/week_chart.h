#pragma once

#include "module/base/iso_week.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// What the charts of calendar weeks share.

/// A week in two digits, as it stands below its bar.
std::string weekName(const base::IsoWeek& week);
/// Weeks in words: "01, 32, 33", with their years where they lie in more than one; of many the first ones.
/// @param weeks in their order
std::string weekNames(const std::vector<base::IsoWeek>& weeks);

/// Where a day stands among bars of weeks, in bars from the left edge; between two bars where its week has
/// none. Nothing when it lies before or behind all of them.
/// @param weeks of the bars, in their order
std::optional<double> placeOf(base::Date day, const std::vector<base::IsoWeek>& weeks);

} // namespace tellurix::logistics
