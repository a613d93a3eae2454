#pragma once

#include <cstdint>
#include <optional>

namespace tellurix::embedded {

/// Checked arithmetic on decimals held as integers: units × 10^-scale. Every function answers
/// nothing when the result has more digits than a decimal can hold.

constexpr std::int64_t largestUnits = 999'999'999'999'999'999; // 18 digits

/// @param exponent from 0 to 18
std::int64_t powerOfTen(int exponent);

/// The same number with another scale, rounded half away from zero.
std::optional<std::int64_t> rescaled(std::int64_t units, int from, int to);

std::optional<std::int64_t> sumOfUnits(std::int64_t left, int leftScale, std::int64_t right, int rightScale,
                                       int scale);
std::optional<std::int64_t> productOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                           int rightScale, int scale);
/// Digits beyond the scale are cut, as the server does. `right` must not be 0.
std::optional<std::int64_t> quotientOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                            int rightScale, int scale);
/// `right` must not be 0.
std::optional<std::int64_t> remainderOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                             int rightScale, int scale);

/// Rounded to so many decimals (negative: tens, hundreds, …), in the same scale.
std::optional<std::int64_t> roundedUnits(std::int64_t units, int scale, std::int64_t decimals);

/// The same without rounding: the digits are cut off.
std::optional<std::int64_t> cutUnits(std::int64_t units, int scale, std::int64_t decimals);

} // namespace tellurix::embedded
