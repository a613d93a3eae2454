#include "module/base/date_format.h"
#include "module/base/typed_date.h"

#include <stdexcept>

namespace tellurix::base {
namespace {

using namespace std::chrono_literals;
using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

TEST(DateFormat, ShowsAMomentThroughAMask) {
    const auto moment = startOf(2025y / 3 / 5) + 9h + 7min + 3s + 999ms;
    struct Row {
        const char* rule;
        const char* mask;
        const char* german;
        const char* english;
    };
    for (const auto& row : std::vector<Row>{
             {"a day", "dd.mm.yyyy", "05.03.2025", "05.03.2025"},
             {"a year of two digits", "dd.mm.yy", "05.03.25", "05.03.25"},
             {"mm behind hh is the minute", "dd.mm.yyyy hh:mm:ss", "05.03.2025 09:07:03",
              "05.03.2025 09:07:03"},
             {"MM is the month", "dd.MM.yyyy hh:mm", "05.03.2025 09:07", "05.03.2025 09:07"},
             {"mm behind a day is the month again", "hh:mm dd.mm.", "09:07 05.03.", "09:07 05.03."},
             {"MM is the month behind the hour, too", "hh MM", "09 03", "09 03"},
             {"hours in upper case", "HH:mm", "09:07", "09:07"},
             {"milliseconds are cut, not rounded", "ss", "03", "03"},
             {"single letters leave the zero away", "d.m. h:m:s", "5.3. 9:7:3", "5.3. 9:7:3"},
             {"names", "dddd, mmmm yyyy", "Mittwoch, März 2025", "Wednesday, March 2025"},
             {"other characters stand for themselves", "KW yyyy/'mm'", "KW 2025/'03'", "KW 2025/'03'"},
             {"no mask, no text", "", "", ""},
         }) {
        EXPECT_EQ(formatDate(moment, row.mask, Locale::german()), row.german) << row.rule;
        EXPECT_EQ(formatDate(moment, row.mask, Locale::english()), row.english) << row.rule;
    }
    for (const auto* mask : {"ddd", "ddddd", "mmm", "MMMMM", "y", "yyy", "yyyyy", "hhh", "hh:mmmm", "sss"}) {
        EXPECT_THROW(formatDate(moment, mask, Locale::german()), std::invalid_argument) << mask;
    }
}

TEST(DateFormat, ShowsDaysAtTheEdgesOfTheCalendar) {
    const auto shown = [](Date date) { return formatDate(date, "dddd dd.mm.yyyy hh:mm", Locale::german()); };
    EXPECT_EQ(shown(1899y / 12 / 31), "Sonntag 31.12.1899 00:00") << "before 1970 a day is a day, too";
    EXPECT_EQ(shown(2024y / 2 / 29), "Donnerstag 29.02.2024 00:00");
    EXPECT_EQ(formatDate(startOf(1900y / 1 / 1) + 23h + 59min, "dd.mm.yyyy hh:mm", Locale::german()),
              "01.01.1900 23:59");
    EXPECT_EQ(formatDate(Date(1900y / 1 / 1), "dddd", Locale::german()), "Montag")
        << "day 2 of the weekday boxes";
}

TEST(TypedDate, IsNoneWhereNoDayIsMeant) {
    for (const char* text :
         {"", " ", "+", "-", "+-3", "+1.5", "+10000", "heut", "31.2.", "5", "5/6.", "29.2."})
        EXPECT_FALSE(typedDate(text, 2025y / 12 / 30)) << text;
}

TEST(DateFormat, ReadsADateAsTypedTheDayFirst) {
    const std::optional<Date> none;
    struct Row {
        const char* rule;
        const char* text;
        std::optional<Date> expected;
    };
    for (const auto& row : std::vector<Row>{
             {"the day comes first", "5.6.2025", 2025y / 6 / 5},
             {"zeros in front", "05.06.2025", 2025y / 6 / 5},
             {"blanks around", " 5.6.2025 ", 2025y / 6 / 5},
             {"slashes", "5/6/2025", 2025y / 6 / 5},
             {"hyphens", "5-6-25", 2025y / 6 / 5},
             {"digits only", "05062025", 2025y / 6 / 5},
             {"digits only, short year", "050625", 2025y / 6 / 5},
             {"the year first, as databases write it", "2025-06-05", 2025y / 6 / 5},
             {"short years to 29 are of this century", "01.01.00", 2000y / 1 / 1},
             {"29 is 2029", "31.12.29", 2029y / 12 / 31},
             {"30 is 1930", "01.01.30", 1930y / 1 / 1},
             {"99 is 1999", "31.12.99", 1999y / 12 / 31},
             {"a leap day", "29.02.2024", 2024y / 2 / 29},
             {"no leap day", "29.02.2025", none},
             {"a century without a leap day", "29.02.1900", none},
             {"the month is never first", "06/25/2025", none},
             {"no 31st of June", "31.06.2025", none},
             {"no day 0", "0.6.2025", none},
             {"no month 13", "1.13.2025", none},
             {"digits only are no year first", "20250605", none},
             {"a year of one digit", "5.6.5", none},
             {"a year of three digits", "5.6.025", none},
             {"a year of five digits", "5.6.20250", none},
             {"a year too old for the database", "31.12.1752", none},
             {"the oldest year of the database", "01.01.1753", 1753y / 1 / 1},
             {"a number too long for anything", "99999999999999.6.2025", none},
             {"no year", "5.6.", none},
             {"no month", "5..2025", none},
             {"day and month only", "5.6", none},
             {"mixed separators", "5.6/2025", none},
             {"a fourth part", "5.6.2025.1", none},
             {"the year first with points", "2025.06.05", none},
             {"five digits", "50625", none},
             {"a name of a month", "5. Juni 2025", none},
             {"a sign", "-5.6.2025", none},
             {"empty", "", none},
             {"blanks only", "  ", none},
         }) {
        EXPECT_TRUE(parseDate(row.text) == row.expected) << row.rule << ": " << row.text;
    }
}

} // namespace
} // namespace tellurix::base
