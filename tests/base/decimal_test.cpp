#include "module/base/Decimal.h"

#include <limits>

namespace tellurix::base {
namespace {

std::string shown(const std::optional<Decimal>& number) {
    return number ? number->toString() : "none";
}

TEST(Decimal, ReadsPlainNumbersOfUpTo18Digits) {
    struct Row {
        const char* rule;
        const char* text;
        const char* expected;
    };
    for (const auto& row : std::vector<Row>{
             {"the scale is kept as written", "-12.50", "-12.50"},
             {"a plus is no part of the number", "+7", "7"},
             {"digits on one side of the point are enough, left", "5.", "5"},
             {"digits on one side of the point are enough, right", "-.5", "-0.5"},
             {"an exponent moves the point right", "1e2", "100"},
             {"an exponent moves the point left", "1.25E-3", "0.00125"},
             {"an exponent uses up decimals first", "1.255e+2", "125.5"},
             {"zeros in front are no digits", "000000000000000000000012", "12"},
             {"zeros behind the eighteenth digit are no digits", "1.00000000000000000000",
              "1.00000000000000000"},
             {"18 digits fit", "999999999999999999", "999999999999999999"},
             {"18 decimals fit", "0.000000000000000001", "0.000000000000000001"},
             {"19 digits do not fit", "1000000000000000000", "none"},
             {"19 decimals do not fit", "1e-19", "none"},
             {"an exponent cannot overflow", "1e99999999999999999999", "none"},
             {"a zero stays zero whatever its exponent", "0e99999999999999999999", "0"},
             {"a minus does not make a zero negative", "-0.0", "0.0"},
             {"empty", "", "none"},
             {"a sign alone", "-", "none"},
             {"a point alone", ".", "none"},
             {"an exponent needs digits", "1e", "none"},
             {"an exponent needs a number", "e2", "none"},
             {"two points", "1.2.3", "none"},
             {"two signs", "--1", "none"},
             {"no comma", "1,5", "none"},
             {"no blanks", " 1", "none"},
             {"nothing behind the number", "1;", "none"},
             {"no hexadecimal", "0x10", "none"},
             {"no infinity", "inf", "none"},
         }) {
        EXPECT_EQ(shown(Decimal::parse(row.text)), row.expected) << row.rule;
    }
    EXPECT_TRUE(isPlainNumber("12345678901234567890123")) << "a plain number may be longer than a decimal";
}

TEST(Decimal, RoundsHalfAwayFromZero) {
    struct Row {
        const char* number;
        int scale;
        const char* expected;
    };
    for (const auto& row : std::vector<Row>{
             {"12.345", 2, "12.35"}, // as a binary number this is 12.34
             {"-12.345", 2, "-12.35"},
             {"12.3449999999999999", 2, "12.34"},
             {"13.574", 2, "13.57"},
             {"0.5", 0, "1"},
             {"-0.4", 0, "0"},
             {"9.99", 1, "10.0"},
             {"7", 3, "7.000"},
             {"-1.5", 2, "-1.50"},
             {"0.999999999999999999", 0, "1"},
             {"999999999999999999", 0, "999999999999999999"},
         }) {
        EXPECT_EQ(Decimal::parse(row.number)->rounded(row.scale).toString(), row.expected) << row.number;
    }
}

TEST(Decimal, RefusesWhatDoesNotFit18Digits) {
    EXPECT_THROW(Decimal(1'000'000'000'000'000'000), std::out_of_range);
    EXPECT_THROW(Decimal{std::numeric_limits<std::int64_t>::min()}, std::out_of_range);
    EXPECT_THROW(Decimal(1, 19), std::out_of_range);
    EXPECT_THROW(Decimal(1, -1), std::out_of_range);
    EXPECT_THROW(Decimal(1).rounded(-1), std::out_of_range);
    EXPECT_THROW(Decimal(1).rounded(19), std::out_of_range);
    EXPECT_THROW(Decimal(1).rounded(18), std::out_of_range);
    EXPECT_THROW(Decimal(Decimal::maxUnits).rounded(18), std::out_of_range);
    EXPECT_THROW(Decimal(-Decimal::maxUnits, 2).rounded(3), std::out_of_range);
    EXPECT_THROW(Decimal::fromDouble(1e18), std::out_of_range);
    EXPECT_THROW(Decimal::fromDouble(std::numeric_limits<double>::infinity()), std::out_of_range);
    EXPECT_THROW(Decimal::fromDouble(std::numeric_limits<double>::quiet_NaN()), std::out_of_range);
}

TEST(Decimal, TakesTheShortestFormOfAFloatingPointNumber) {
    struct Row {
        double number;
        const char* expected;
    };
    for (const auto& row : std::vector<Row>{
             {0.1, "0.1"},
             {-12.345, "-12.345"},
             {1e17, "100000000000000000"},
             {0.1 + 0.2, "0.30000000000000004"},
             {0.0012345678901234567, "0.001234567890123457"},
             {-5.551115123125783e-17, "-0.000000000000000056"}, // what is left of 0.1 + 0.2 - 0.3
             {1e-300, "0.000000000000000000"},
             {-0.0, "0"},
         }) {
        EXPECT_EQ(Decimal::fromDouble(row.number).toString(), row.expected);
    }
}

TEST(Decimal, ComparesByValueWhateverTheScales) {
    // Each number is smaller than the next one.
    const std::vector<Decimal> rising{Decimal(-Decimal::maxUnits),
                                      Decimal(-2),
                                      Decimal(-15, 1),
                                      Decimal(-Decimal::maxUnits, 18),
                                      Decimal(-5, 1),
                                      Decimal(-1, 18),
                                      Decimal(),
                                      Decimal(3, 1),
                                      Decimal(Decimal::maxUnits, 18),
                                      Decimal(1),
                                      Decimal(101, 2),
                                      Decimal(15, 1),
                                      Decimal(Decimal::maxUnits)};
    for (std::size_t left = 0; left < rising.size(); ++left) {
        for (std::size_t right = 0; right < rising.size(); ++right) {
            EXPECT_EQ(rising[left] <=> rising[right], left <=> right)
                << rising[left].toString() << " and " << rising[right].toString();
        }
    }
    EXPECT_EQ(Decimal(15, 1), Decimal(150, 2));
    EXPECT_EQ(Decimal(0, 18), Decimal());
}

TEST(Decimal, CalculatesExactlyOrRefuses) {
    const auto number = [](const char* text) { return Decimal::parse(text).value(); };
    struct Case {
        const char* left;
        const char* right;
        const char* sum;
        const char* difference;
        const char* product;
    };
    const Case cases[] = {
        {"12.345", "110", "122.345", "-97.655", "1357.95"},
        {"0.1", "0.2", "0.3", "-0.1", "0.02"},
        {"-1.50", "1.5", "0.0", "-3.0", "-2.25"},
        {"1e-18", "-1", "refused", "refused", "-0.000000000000000001"},
        {"999999999", "999999999.000", "1999999998", "0", "999999998000000001"},
        {"0", "999999999999999999", "999999999999999999", "-999999999999999999", "0"},
        {"999999999999999999", "-1", "999999999999999998", "refused", "-999999999999999999"},
        {"1000000000.5", "1000000000.5", "2000000001", "0", "refused"},
        {"100000000000000000", "0.01", "refused", "refused", "1000000000000000"},
        {"1e-10", "1e-10", "0.0000000002", "0", "refused"},
    };
    const auto check = [&](const char* expected, const auto& calculate) {
        if (std::string_view{expected} == "refused") {
            EXPECT_THROW(calculate(), std::out_of_range);
        } else {
            EXPECT_EQ(calculate(), number(expected)) << expected;
        }
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string{c.left} + " and " + c.right);
        const Decimal left = number(c.left);
        const Decimal right = number(c.right);
        check(c.difference, [&] { return left - right; });
        check(c.sum, [&] { return left + right; });
        check(c.product, [&] { return left * right; });
    }
    EXPECT_EQ(number("1357.95").dividedByTenTo(2), number("13.5795"));
    EXPECT_EQ(number("100.00").dividedByTenTo(18), number("0.0000000000000001"));
    EXPECT_THROW(number("1.5").dividedByTenTo(18), std::out_of_range);
}

} // namespace
} // namespace tellurix::base
