#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tellurix::base {

/// An exact decimal number: `units` × 10^-scale, as the database's decimal columns hold it.
///
/// Up to 18 digits, which covers every quantity and price of the trade. Prices are rounded by
/// the cent, half away from zero, and what the screen shows has to be what the database stores;
/// a binary floating-point number cannot promise that.
class Decimal {
public:
    static constexpr int maxScale = 18;
    /// The largest amount of units, 18 digits of 9; the smallest is its negative.
    static constexpr std::int64_t maxUnits = 999'999'999'999'999'999;

    constexpr Decimal() = default;
    /// @throws std::out_of_range when `units` has more than 18 digits or `scale` is not 0 to 18.
    constexpr explicit Decimal(std::int64_t units, int scale = 0) : units_(units), scale_(scale) {
        if (units > maxUnits || units < -maxUnits)
            throw std::out_of_range("decimal number of more than 18 digits");
        if (scale < 0 || scale > maxScale) throw std::out_of_range("decimal number of more than 18 decimals");
    }

    /// Reads a plain number (see `isPlainNumber`). The scale is the number of decimals as written,
    /// so "1.50" has two; zeros at either end that are beyond the 18 digits do not count.
    /// @return nothing when the text is no such number or has more than 18 digits.
    static std::optional<Decimal> parse(std::string_view text);

    /// The decimal nearest to a floating-point number, by its shortest decimal form (0.1 is 0.1).
    /// Decimals after the eighteenth are rounded half away from zero.
    /// @throws std::out_of_range when it is not finite or has more than 18 digits before the point.
    static Decimal fromDouble(double value);

    /// The nearest floating-point number, for what is only drawn.
    double toDouble() const;

    std::int64_t units() const { return units_; }
    int scale() const { return scale_; }

    /// The same number with exactly `scale` decimals, rounded half away from zero.
    /// @throws std::out_of_range when it does not fit 18 digits.
    Decimal rounded(int scale) const;

    /// The same digits with the decimal point `places` further left: divided by 10^places, exactly.
    /// @throws std::out_of_range when it does not fit 18 decimals.
    Decimal dividedByTenTo(int places) const;

    /// Exact results, with as many decimals as they need.
    /// @throws std::out_of_range when the result, or a side of a sum brought to the decimals of the
    /// other, does not fit 18 digits.
    friend Decimal operator+(const Decimal& left, const Decimal& right);
    friend Decimal operator-(const Decimal& left, const Decimal& right);
    friend Decimal operator*(const Decimal& left, const Decimal& right);

    /// Plain text with "." as decimal point and exactly `scale()` decimals, e.g. "-0.50".
    std::string toString() const;

    /// Compares by value: 1.5 equals 1.50.
    friend bool operator==(const Decimal& left, const Decimal& right);
    friend std::strong_ordering operator<=>(const Decimal& left, const Decimal& right);

private:
    /// Without zeros at the end of its decimals.
    Decimal shortest() const;

    std::int64_t units_ = 0;
    int scale_ = 0;
};

/// Whether the text is a number with "." as decimal point and nothing else, however long:
/// "-12.50", "+7", ".5", "5.", "1e2". What a T-SQL server takes for a number, too.
bool isPlainNumber(std::string_view text);

} // namespace tellurix::base
