#include "database/embedded/values/decimal_units.h"

#include <array>

#ifndef __SIZEOF_INT128__
#include <boost/multiprecision/cpp_int.hpp>
#endif

namespace tellurix::embedded {

namespace {

// Products of two 18-digit numbers need 36 digits on the way.
#ifdef __SIZEOF_INT128__
__extension__ using Wide = __int128;
#else
using Wide = boost::multiprecision::int128_t;
#endif

constexpr int mostDigits = 18;

std::optional<std::int64_t> narrow(Wide value) {
    if (value > largestUnits || value < -largestUnits) return std::nullopt;
    return static_cast<std::int64_t>(value);
}

Wide dividedHalfAway(Wide value, Wide divisor) {
    const Wide quotient = value / divisor;
    Wide remainder = value % divisor;
    if (remainder < 0) remainder = -remainder;
    if (remainder * 2 < divisor) return quotient;
    return value < 0 ? quotient - 1 : quotient + 1;
}

/// Scales by 10^exponent; a negative exponent rounds.
Wide shifted(Wide value, int exponent) {
    for (; exponent > mostDigits; exponent -= mostDigits)
        value *= powerOfTen(mostDigits);
    if (exponent >= 0) return value * powerOfTen(exponent);
    Wide divisor = 1;
    for (; exponent < -mostDigits; exponent += mostDigits)
        divisor *= powerOfTen(mostDigits);
    return dividedHalfAway(value, divisor * powerOfTen(-exponent));
}

} // namespace

std::int64_t powerOfTen(int exponent) {
    static constexpr std::array<std::int64_t, mostDigits + 1> powers = [] {
        std::array<std::int64_t, mostDigits + 1> table{};
        table[0] = 1;
        for (std::size_t index = 1; index < table.size(); ++index)
            table[index] = table[index - 1] * 10;
        return table;
    }();
    return powers.at(static_cast<std::size_t>(exponent));
}

std::optional<std::int64_t> rescaled(std::int64_t units, int from, int to) {
    return narrow(shifted(units, to - from));
}

std::optional<std::int64_t> sumOfUnits(std::int64_t left, int leftScale, std::int64_t right, int rightScale,
                                       int scale) {
    return narrow(shifted(left, scale - leftScale) + shifted(right, scale - rightScale));
}

std::optional<std::int64_t> productOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                           int rightScale, int scale) {
    return narrow(shifted(Wide{left} * right, scale - leftScale - rightScale));
}

std::optional<std::int64_t> quotientOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                            int rightScale, int scale) {
    const int exponent = scale - leftScale + rightScale;
    if (exponent < 0) return narrow(Wide{left} / (Wide{right} * powerOfTen(-exponent)));
    Wide numerator = left;
    for (int step = 0; step < exponent; ++step) {
        constexpr Wide limit = Wide{largestUnits} * largestUnits;
        if (numerator > limit || numerator < -limit) return std::nullopt;
        numerator *= 10;
    }
    return narrow(numerator / right);
}

std::optional<std::int64_t> remainderOfUnits(std::int64_t left, int leftScale, std::int64_t right,
                                             int rightScale, int scale) {
    return narrow(shifted(left, scale - leftScale) % shifted(right, scale - rightScale));
}

std::optional<std::int64_t> roundedUnits(std::int64_t units, int scale, std::int64_t decimals) {
    if (decimals >= scale) return units;
    if (scale - decimals > mostDigits) return 0;
    const std::int64_t step = powerOfTen(static_cast<int>(scale - decimals));
    return narrow(dividedHalfAway(units, step) * step);
}

std::optional<std::int64_t> cutUnits(std::int64_t units, int scale, std::int64_t decimals) {
    if (decimals >= scale) return units;
    if (scale - decimals > mostDigits) return 0;
    return units - units % powerOfTen(static_cast<int>(scale - decimals));
}

} // namespace tellurix::embedded
