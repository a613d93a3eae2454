#include "module/base/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace tellurix::base {

namespace {

constexpr int maxDigits = 18;

constexpr std::array<std::int64_t, maxDigits + 1> powersOfTen = [] {
    std::array<std::int64_t, maxDigits + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

constexpr std::int64_t powerOfTen(int exponent) {
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

/// A written number taken apart: 0.0125 and 1.25e-2 both have the digits 125 and 4 decimals.
struct WrittenNumber {
    bool negative = false;
    std::string digits; ///< without zeros in front
    int decimals = 0;   ///< negative where an exponent adds zeros
};

/// Cuts the digits at the front of `text` off and returns them.
std::string_view takeDigits(std::string_view& text) {
    const auto length = std::min(text.find_first_not_of("0123456789"), text.size());
    const auto digits = text.substr(0, length);
    text.remove_prefix(length);
    return digits;
}

/// Cuts a sign at the front of `text` off.
/// @return whether it was a minus
bool takeSign(std::string_view& text) {
    if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

int exponentOf(std::string_view digits) {
    // Far beyond any number that fits, and far from an overflow of the sums it enters.
    constexpr int endless = 1'000'000;
    int exponent = 0;
    for (const char digit : digits)
        exponent = std::min(exponent * 10 + (digit - '0'), endless);
    return exponent;
}

std::optional<WrittenNumber> takeApart(std::string_view text) {
    WrittenNumber number;
    number.negative = takeSign(text);
    const auto whole = takeDigits(text);
    std::string_view fraction;
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        fraction = takeDigits(text);
    }
    if (whole.empty() && fraction.empty()) return std::nullopt;

    number.decimals = static_cast<int>(fraction.size());
    if (text.starts_with('e') || text.starts_with('E')) {
        text.remove_prefix(1);
        const bool smaller = takeSign(text);
        const auto exponent = takeDigits(text);
        if (exponent.empty()) return std::nullopt;
        number.decimals += smaller ? exponentOf(exponent) : -exponentOf(exponent);
    }
    if (!text.empty()) return std::nullopt;

    number.digits.append(whole).append(fraction);
    number.digits.erase(0, number.digits.find_first_not_of('0'));
    return number;
}

std::int64_t unitsOf(const WrittenNumber& number) {
    std::int64_t units = 0;
    for (const char digit : number.digits)
        units = units * 10 + (digit - '0');
    return number.negative ? -units : units;
}

/// `units` / 10^`digits`, rounded half away from zero.
std::int64_t withoutLastDigits(std::int64_t units, int digits) {
    if (digits > maxDigits) return 0;
    const auto divisor = powerOfTen(digits);
    const auto quotient = units / divisor;
    const auto twiceRest = units % divisor * 2;
    if (twiceRest >= divisor) return quotient + 1;
    if (twiceRest <= -divisor) return quotient - 1;
    return quotient;
}

} // namespace

bool isPlainNumber(std::string_view text) {
    return takeApart(text).has_value();
}

std::optional<Decimal> Decimal::parse(std::string_view text) {
    auto number = takeApart(text);
    if (!number) return std::nullopt;
    if (number->digits.empty()) return Decimal(0, std::clamp(number->decimals, 0, maxScale));

    const auto tooLong = [&] { return number->digits.size() > maxDigits || number->decimals > maxScale; };
    while (tooLong() && number->decimals > 0 && number->digits.back() == '0') {
        number->digits.pop_back();
        --number->decimals;
    }
    if (tooLong()) return std::nullopt;
    if (number->decimals < 0) {
        const auto zeros = static_cast<std::size_t>(-number->decimals);
        if (number->digits.size() + zeros > maxDigits) return std::nullopt;
        number->digits.append(zeros, '0');
        number->decimals = 0;
    }
    return Decimal(unitsOf(*number), number->decimals);
}

Decimal Decimal::fromDouble(double value) {
    if (!std::isfinite(value)) throw std::out_of_range("a number that is not finite has no decimal form");
    std::array<char, 32> buffer{};
    const auto written =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));

    // The shortest form of a double has 17 digits at most, so its units always fit.
    const auto number = takeApart(text);
    if (number && number->decimals > maxScale) {
        return Decimal(withoutLastDigits(unitsOf(*number), number->decimals - maxScale), maxScale);
    }
    const auto decimal = parse(text);
    if (!decimal) throw std::out_of_range("decimal number of more than 18 digits: " + std::string(text));
    return *decimal;
}

Decimal Decimal::rounded(int scale) const {
    if (scale < 0 || scale > maxScale) throw std::out_of_range("decimal number of more than 18 decimals");
    if (scale <= scale_) return Decimal(withoutLastDigits(units_, scale_ - scale), scale);
    const auto factor = powerOfTen(scale - scale_);
    if (units_ > maxUnits / factor || units_ < -(maxUnits / factor)) {
        throw std::out_of_range("decimal number of more than 18 digits: " + toString() + " with " +
                                std::to_string(scale) + " decimals");
    }
    return Decimal(units_ * factor, scale);
}

Decimal Decimal::shortest() const {
    Decimal shorter = *this;
    while (shorter.scale_ > 0 && shorter.units_ % 10 == 0) {
        shorter.units_ /= 10;
        --shorter.scale_;
    }
    return shorter;
}

Decimal Decimal::dividedByTenTo(int places) const {
    const Decimal number = shortest();
    return Decimal(number.units_, number.scale_ + places);
}

Decimal operator+(const Decimal& left, const Decimal& right) {
    const Decimal a = left.shortest();
    const Decimal b = right.shortest();
    const int scale = std::max(a.scale_, b.scale_);
    // Two numbers of 18 digits cannot overflow 64 bits when they are added.
    return Decimal(a.rounded(scale).units_ + b.rounded(scale).units_, scale);
}

Decimal operator-(const Decimal& left, const Decimal& right) {
    return left + Decimal(-right.units_, right.scale_);
}

Decimal operator*(const Decimal& left, const Decimal& right) {
    const Decimal a = left.shortest();
    const Decimal b = right.shortest();
    const auto magnitude = [](const Decimal& number) {
        return number.units_ < 0 ? -number.units_ : number.units_;
    };
    if (b.units_ != 0 && magnitude(a) > Decimal::maxUnits / magnitude(b))
        throw std::out_of_range("decimal number of more than 18 digits: " + left.toString() + " * " +
                                right.toString());
    return Decimal(a.units_ * b.units_, a.scale_ + b.scale_);
}

double Decimal::toDouble() const {
    return static_cast<double>(units_) / static_cast<double>(powerOfTen(scale_));
}

std::string Decimal::toString() const {
    auto digits = std::to_string(units_ < 0 ? -units_ : units_);
    const auto decimals = static_cast<std::size_t>(scale_);
    if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
    if (decimals > 0) digits.insert(digits.size() - decimals, 1, '.');
    if (units_ < 0) digits.insert(0, 1, '-');
    return digits;
}

bool operator==(const Decimal& left, const Decimal& right) {
    return (left <=> right) == std::strong_ordering::equal;
}

std::strong_ordering operator<=>(const Decimal& left, const Decimal& right) {
    // Whole parts first, then the decimals brought to the same scale: neither can overflow.
    const auto whole = [](const Decimal& number) { return number.units_ / powerOfTen(number.scale_); };
    const auto fraction = [](const Decimal& number) {
        return number.units_ % powerOfTen(number.scale_) * powerOfTen(Decimal::maxScale - number.scale_);
    };
    if (const auto order = whole(left) <=> whole(right); order != std::strong_ordering::equal) return order;
    return fraction(left) <=> fraction(right);
}

} // namespace tellurix::base
