#pragma once

#include "module/base/Locale.h"

#include <chrono>
#include <optional>
#include <string>

namespace tellurix::standin {

/// A number as a spreadsheet keeps it, with the mask that shows it as it was.
struct NumberCell {
    double value;
    std::string mask; ///< as spreadsheet files write it: "#,##0.00"
};

/// The number that a text shows. Nothing where a spreadsheet would show another one: for what is no
/// number, and for more digits than it keeps.
std::optional<NumberCell> numberIn(const std::string& text, const base::Locale& locale);

/// A moment as a spreadsheet keeps it.
struct DateCell {
    std::chrono::year_month_day day;
    int hour = 0;
    int minute = 0;
    int second = 0;
    const char* mask = "dd.mm.yyyy";
};

/// The date that a text shows whole, "dd.mm.yyyy" with or without a time; nothing for any other text
/// and for days before those that all spreadsheet programs count alike.
std::optional<DateCell> dateIn(const std::string& text);

} // namespace tellurix::standin
