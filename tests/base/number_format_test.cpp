#include "module/base/number_format.h"

#include <stdexcept>

namespace tellurix::base {
namespace {

TEST(NumberFormat, ShowsANumberThroughAMask) {
    struct Row {
        const char* rule;
        const char* number;
        const char* mask;
        const char* german;
        const char* english;
    };
    for (const auto& row : std::vector<Row>{
             {"two decimals are always shown", "12.5", "0.00", "12,50", "12.50"},
             {"rounds half away from zero", "12.345", "##0.00", "12,35", "12.35"},
             {"rounds a negative half away from zero", "-0.005", "0.00", "-0,01", "-0.01"},
             {"what rounds to zero has no sign", "-0.004", "0.00", "0,00", "0.00"},
             {"one zero before the decimal character", ".5", "#########0.00", "0,50", "0.50"},
             {"digits beyond the places are shown", "123456.7", "##0.00", "123456,70", "123456.70"},
             {"a minus in the mask is not shown", "3", "-#######0.00", "3,00", "3.00"},
             {"a negative number has one minus", "-3", "-#######0.00", "-3,00", "-3.00"},
             {"whole numbers", "1250.5", "#####0", "1251", "1251"},
             {"zeros in front", "5", "0000", "0005", "0005"},
             {"week of two digits", "5", "00", "05", "05"},
             {"thousands", "1250", "##,##0", "1.250", "1,250"},
             {"millions", "-1234567", "##,##0", "-1.234.567", "-1,234,567"},
             {"three digits need no grouping", "-125", "##,##0", "-125", "-125"},
             {"zero with a shown digit", "0.4", "##,##0", "0", "0"},
             {"zero without a shown digit is empty", "0.4", "##,###", "", ""},
             {"no zero in front without a shown digit", "1000", "##,###", "1.000", "1,000"},
             {"grouping with decimals", "1234.5", "##,##0.00", "1.234,50", "1,234.50"},
             {"optional decimals only when needed", "1.50", "0.0##", "1,5", "1.5"},
             {"18 digits can be shown with decimals", "999999999999999999", "0.00", "999999999999999999,00",
              "999999999999999999.00"},
         }) {
        EXPECT_EQ(formatNumber(*Decimal::parse(row.number), row.mask, Locale::german()), row.german)
            << row.rule;
        EXPECT_EQ(formatNumber(*Decimal::parse(row.number), row.mask, Locale::english()), row.english)
            << row.rule;
    }
    for (const auto* mask : {"", "-", ".", "0.0.0", "0%", "0,0.0,0", "dd"}) {
        EXPECT_THROW(formatNumber(Decimal(), mask, Locale::german()), std::invalid_argument) << mask;
    }
}

TEST(NumberFormat, ReadsANumberAsTyped) {
    struct Row {
        const char* rule;
        const char* text;
        const char* expected;
    };
    for (const auto& row : std::vector<Row>{
             {"decimal comma", "12,5", "12.5"},
             {"grouping and decimals", "-1.250,00", "-1250.00"},
             {"two groups", "1.234.567", "1234567"},
             {"decimals alone", ",5", "0.5"},
             {"a comma at the end", "5,", "5"},
             {"a plus", "+7", "7"},
             {"blanks around", "  12,5\t", "12.5"},
             {"ungrouped thousands", "12345", "12345"},
             {"a point is no decimal comma", "12.5", "none"},
             {"a date is no number", "05.06.2025", "none"},
             {"a group too long", "1.2500", "none"},
             {"a first group too long", "1234.567", "none"},
             {"a group before the comma too short", "1.25,0", "none"},
             {"two points in a row", "1..250", "none"},
             {"a point in front", ".250", "none"},
             {"a point at the end", "250.", "none"},
             {"grouping among the decimals", "1,250.000", "none"},
             {"two commas", "1,2,3", "none"},
             {"empty", "", "none"},
             {"blanks only", "   ", "none"},
             {"a comma alone", ",", "none"},
             {"a sign alone", "-", "none"},
             {"a blank inside", "1 250", "none"},
             {"an exponent is not typed", "1e2", "none"},
             {"letters", "12a", "none"},
             {"more digits than are kept", "1234567890123456789", "none"},
         }) {
        const auto number = parseNumber(row.text, Locale::german());
        EXPECT_EQ(number ? number->toString() : "none", row.expected) << row.rule;
        EXPECT_EQ(isNumeric(row.text, Locale::german()), number.has_value()) << row.rule;
    }
    EXPECT_EQ(parseNumber("-1,250.5", Locale::english()), Decimal(-12505, 1));
    EXPECT_FALSE(isNumeric("12,5", Locale::english()));
}

TEST(NumberFormat, ReformatsNumbersAndLeavesOtherTextsAlone) {
    EXPECT_EQ(reformatNumber(" 1.250,5 ", "#########0.00", Locale::german()), "1250,50");
    EXPECT_EQ(reformatNumber("", "0.00", Locale::german()), "");
    EXPECT_EQ(reformatNumber(" 12a ", "0.00", Locale::german()), " 12a ");
}

TEST(NumberFormat, LetsOnlyTheBeginningsOfNumbersBeTyped) {
    struct Row {
        const char* rule;
        const char* mask;
        std::vector<const char*> fitting;
        std::vector<const char*> refused;
    };
    for (const auto& row : std::vector<Row>{
             {"places before and after the comma",
              "##0.00",
              {"", "1", "123", "123,", "123,4", "123,45", ",", ",45"},
              {"1234", "1,234", "1,2,", "1.0", "a", " 1", "1e2", "+1"}},
             {"a minus only where the mask has one, and only in front", "##0.00", {"5"}, {"-", "-5", "5-"}},
             {"negative amounts",
              "-#####0.00",
              {"-", "-,5", "-123456,78", "123456"},
              {"--", "1-", "-1234567", "+"}},
             {"whole numbers take no comma", "0000", {"2025"}, {"20255", "1,", ","}},
             {"grouping where the mask groups",
              "##,##0",
              {"1.", "1.2", "1.250", "12.250", "12250"},
              {"1..", ".", "1.2505", "1234.", "1.25.", "123.456", "1,"}},
             {"a whole group before the comma", "##,##0.00", {"1.250,5"}, {"1.2,", "1,250.", "1.2505"}},
         }) {
        for (const auto* text : row.fitting) {
            EXPECT_TRUE(fitsNumberMask(text, row.mask, Locale::german())) << row.rule << ": " << text;
        }
        for (const auto* text : row.refused) {
            EXPECT_FALSE(fitsNumberMask(text, row.mask, Locale::german())) << row.rule << ": " << text;
        }
    }
    EXPECT_TRUE(fitsNumberMask("12.5", "##0.00", Locale::english()));
    EXPECT_FALSE(fitsNumberMask("12,5", "##0.00", Locale::english()));
}

TEST(NumberFormat, TheLongestTextOfAMask) {
    EXPECT_EQ(longestInMask("-#######0.00"), 12) << "-12345678,90";
    EXPECT_EQ(longestInMask("##,##0"), 6) << "12.345";
    EXPECT_EQ(longestInMask("0000"), 4);
}

} // namespace
} // namespace tellurix::base
