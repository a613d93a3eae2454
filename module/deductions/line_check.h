#pragma once

#include "module/base/Decimal.h"
#include "module/base/Locale.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tellurix::deductions {

/// A line as far as it decides whether the lines can be saved.
struct CheckedLine {
    int position = -1;     ///< of the statistic in its list
    std::string statistic; ///< its text
    std::string value;
    std::string designation;

    /// A statistic and a value, whatever they are.
    bool complete() const { return !statistic.empty() && !value.empty(); }
};

/// The first line that keeps the lines from being saved, and what it lacks.
struct LineFault {
    enum class Lack { statistic, value };
    std::size_t line = 0;
    Lack lack = Lack::statistic;
};

/// A value with either decimal character: what a colleague with other settings has stored is read, too.
/// @return nothing for a text that is no number
std::optional<base::Decimal> amountIn(std::string_view text, const base::Locale& locale);

/// Nothing but, at most, a value of zero and the first entry of the list of statistics.
bool isEmptyLine(const CheckedLine& line, const base::Locale& locale);

/// Each line has to be complete or empty, and the complete ones have to be an unbroken block from the
/// first line on.
std::optional<LineFault> firstFault(const std::array<CheckedLine, 16>& lines, const base::Locale& locale);

} // namespace tellurix::deductions
