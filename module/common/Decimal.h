#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tellurix::common {

/// An exact decimal number: `units` × 10^-scale, as the database's decimal columns hold it.
///
/// Up to 18 digits, which covers every quantity and price of the trade. Prices are rounded by
/// the cent, half away from zero, and what the screen shows has to be what the database stores;
/// a binary floating-point number cannot promise that.
class Decimal {
public:
    static constexpr int maxScale = 18;

    constexpr Decimal() = default;
    constexpr explicit Decimal(std::int64_t units, int scale = 0) : units_(units), scale_(scale) {}

    /// Reads a number with "." as decimal point: "-12.50", "+7", ".5", "5.", "1e2".
    /// @return nothing when the text is no such number or has more than 18 digits.
    static std::optional<Decimal> parse(std::string_view text);

    /// The decimal nearest to a floating-point number, by its shortest decimal form.
    /// @throws std::out_of_range when it has no such form within 18 digits.
    static Decimal fromDouble(double value);

    std::int64_t units() const { return units_; }
    int scale() const { return scale_; }

    /// The same number with exactly `scale` decimals, rounded half away from zero.
    /// @throws std::out_of_range when it does not fit 18 digits.
    Decimal rounded(int scale) const;

    /// Plain text with "." as decimal point and exactly `scale()` decimals, e.g. "-0.50".
    std::string toString() const;
    double toDouble() const;

    /// Compares by value: 1.5 equals 1.50.
    friend bool operator==(const Decimal& left, const Decimal& right);
    friend std::strong_ordering operator<=>(const Decimal& left, const Decimal& right);

private:
    std::int64_t units_ = 0;
    int scale_ = 0;
};

} // namespace tellurix::common
