#include "module/logistics/plan/calendar_weeks.h"

#include "module/base/date_format.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using base::Date;
using base::parseDate;
using logistics::DeliveryPeriod;

Date day(const char* text) {
    return parseDate(text).value();
}

DeliveryPeriod period(const char* from, const char* to) {
    return {day(from), day(to)};
}

/// The generated weeks, each run of weeks of one year as "year: first-last".
std::string runs(const DeliveryPeriod& period) {
    std::string text;
    base::IsoWeek last;
    for (const base::IsoWeek& week : logistics::generatedWeeks(period)) {
        if (week.year != last.year) {
            if (last.year != 0) text += std::to_string(last.week) + " ";
            text += std::to_string(week.year) + ": " + std::to_string(week.week) + "-";
        } else {
            EXPECT_EQ(week.week, last.week + 1);
        }
        last = week;
    }
    return last.year == 0 ? "none" : text + std::to_string(last.week);
}

TEST(CalendarWeeks, AWeekHasFiveForms) {
    struct Case {
        const char* rule;
        const char* day;
        const char* key; ///< form 4
        const char* firstMonday;
    };
    const Case cases[] = {
        {"before the day that days are counted from", "29.12.1899", "189952", "02.01.1899"},
        {"New Year on a Monday", "01.01.1900", "190001", "01.01.1900"},
        {"a century without a leap day ends", "31.12.1900", "190101", "01.01.1900"},
        {"New Year on a Tuesday", "01.01.2019", "201901", "31.12.2018"},
        {"New Year on a Wednesday", "01.01.2020", "202001", "30.12.2019"},
        {"New Year on a Thursday", "01.01.2015", "201501", "29.12.2014"},
        {"New Year on a Friday", "01.01.2021", "202053", "04.01.2021"},
        {"New Year on a Saturday", "01.01.2022", "202152", "03.01.2022"},
        {"New Year on a Sunday", "01.01.2023", "202252", "02.01.2023"},
        {"the first Monday", "29.12.2025", "202601", "30.12.2024"},
        {"the last day of a year in the next one", "31.12.2024", "202501", "01.01.2024"},
        {"the last day of a year of 53 weeks", "31.12.2015", "201553", "29.12.2014"},
        {"a week below ten", "05.03.2024", "202410", "01.01.2024"},
        {"a Sunday", "02.02.2025", "202505", "30.12.2024"},
        {"a leap day", "29.02.2096", "209609", "02.01.2096"},
        {"a year of 53 weeks to come", "31.12.2032", "203253", "29.12.2031"},
        {"the last day of the century", "31.12.2100", "210052", "04.01.2100"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        const Date date = day(c.day);
        const std::string key = logistics::strISOWeekNum(date, 4);
        EXPECT_EQ(key, c.key);
        EXPECT_EQ(base::dateText(logistics::FirstMonday(static_cast<std::int16_t>(int{date.year()}))),
                  c.firstMonday);
        EXPECT_EQ(logistics::strISOWeekNum(date, 0), key.substr(4));
        EXPECT_EQ(logistics::strISOWeekNum(date, 1), key.substr(4));
        EXPECT_EQ(logistics::strISOWeekNum(date, 2), key.substr(2));
        EXPECT_EQ(logistics::strISOWeekNum(date, 3), "'" + key.substr(2));
        EXPECT_EQ(logistics::strISOWeekNum(date, 5), "");
        EXPECT_EQ(logistics::strISOWeekNum(date, -1), "");
    }
}

TEST(CalendarWeeks, EveryYearBeginsAsItsNewYearSays) {
    // Counted in days since 30 December 1899, of which 2 is a Monday.
    for (int year = 1899; year <= 2100; ++year) {
        const auto number = [&](Date date) {
            return (std::chrono::local_days{date} - std::chrono::local_days{day("30.12.1899")}).count();
        };
        const auto newYear = number(Date{std::chrono::year{year}, std::chrono::January, std::chrono::day{1}});
        const auto weekday = ((newYear - 2) % 7 + 7) % 7; // 0 is Monday
        EXPECT_EQ(number(logistics::FirstMonday(static_cast<std::int16_t>(year))),
                  newYear - weekday + (weekday >= 4 ? 7 : 0))
            << year;
    }
}

TEST(CalendarWeeks, GenerationKnowsTwoYearsOf53Weeks) {
    struct Case {
        const char* rule;
        const char* from;
        const char* to;
        const char* weeks;
    };
    const Case cases[] = {
        {"within a year", "05.05.2025", "15.06.2025", "2025: 19-24"},
        {"a single day", "05.05.2025", "05.05.2025", "2025: 19-19"},
        {"over New Year", "01.12.2024", "31.01.2025", "2024: 48-52 2025: 1-5"},
        {"2020 has week 53", "01.12.2020", "31.01.2021", "2020: 49-53 2021: 1-4"},
        {"2026 has week 53", "24.12.2026", "10.01.2027", "2026: 52-53 2027: 1-1"},
        {"ends in a week 53 that is not made", "01.12.2015", "01.01.2016", "2015: 49-52"},
        {"passes a week 53 that is not made", "20.12.2032", "09.01.2033", "2032: 52-52 2033: 1-1"},
        {"begins in a week 53 that is not made", "01.01.2016", "17.01.2016", "2016: 1-2"},
        {"only a week 53 that is not made", "01.01.2016", "03.01.2016", "none"},
        {"begins in a week 53 that is made", "01.01.2027", "04.01.2027", "2026: 53-53 2027: 1-1"},
        {"begins in December in week 1", "30.12.2024", "12.01.2025", "2025: 1-2"},
        {"several years", "01.01.2024", "31.12.2026", "2024: 1-52 2025: 1-52 2026: 1-53"},
        {"long ago", "01.12.1899", "15.01.1900", "1899: 48-52 1900: 1-3"},
        {"far ahead", "20.12.2099", "10.01.2100", "2099: 51-52 2100: 1-1"},
        {"ends before it begins", "15.06.2025", "05.05.2025", "none"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(runs(period(c.from, c.to)), c.weeks) << c.rule;
}

TEST(CalendarWeeks, TheBoxesOfferWeeksThatBeginOnSunday) {
    struct Case {
        const char* rule;
        const char* day;
        int week;
    };
    const Case cases[] = {
        {"1 January is in week 1 whatever its day", "01.01.2021", 1},
        {"a Saturday ends week 1", "04.01.2025", 1},
        {"a Sunday begins week 2", "05.01.2025", 2},
        {"a Sunday begins week 1", "01.01.2023", 1},
        {"31 December in week 53", "31.12.2025", 53},
        {"a leap year that begins on Saturday has 54 weeks", "31.12.2028", 54},
        {"long ago", "31.12.1899", 53},
        {"far ahead", "31.12.2100", 53},
    };
    for (const Case& c : cases)
        EXPECT_EQ(logistics::weekFromSunday(day(c.day)), c.week) << c.rule;

    const DeliveryPeriod winter = period("01.12.2024", "31.01.2025");
    EXPECT_EQ(logistics::yearChoices(winter), "SELECT 2024 AS Jahr UNION ALL SELECT 2025 AS Jahr");
    EXPECT_EQ(logistics::weekChoices(winter, 2024),
              "SELECT '49' AS Woche UNION ALL SELECT '50' AS Woche UNION ALL SELECT '51' AS Woche UNION ALL "
              "SELECT '52' AS Woche UNION ALL SELECT '53' AS Woche");
    EXPECT_EQ(logistics::weekChoices(winter, 2025),
              "SELECT '01' AS Woche UNION ALL SELECT '02' AS Woche UNION ALL SELECT '03' AS Woche UNION ALL "
              "SELECT '04' AS Woche UNION ALL SELECT '05' AS Woche");
    const DeliveryPeriod long_ = period("05.05.2024", "31.01.2026");
    const auto offered = logistics::offeredWeeks(long_, 2025);
    EXPECT_EQ(offered.first, 1) << "a year in between";
    EXPECT_EQ(offered.last, 53);
    EXPECT_EQ(logistics::weekChoices(period("05.05.2025", "01.01.2025"), 2025), "") << "nothing to offer";
}

TEST(CalendarWeeks, AWeekLiesInThePeriodByEitherCount) {
    const DeliveryPeriod winter = period("01.12.2024", "31.01.2025");
    EXPECT_EQ(logistics::weeksText(winter), "2024/48 - 2025/05");
    struct Case {
        const char* rule;
        int year;
        int week;
        bool lies;
    };
    const Case cases[] = {
        {"the first ISO week, which is no longer offered", 2024, 48, true},
        {"a week before it", 2024, 47, false},
        {"the last ISO week", 2025, 5, true},
        {"a week behind it", 2025, 6, false},
        {"offered, though the year has no ISO week 53", 2024, 53, true},
        {"no week of any calendar", 2024, 54, false},
        {"week 0", 2025, 0, false},
        {"the year before", 2023, 50, false},
        {"the year behind", 2026, 1, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(logistics::weekLiesIn(winter, {c.year, c.week}), c.lies) << c.rule;
    EXPECT_TRUE(logistics::yearLiesIn(winter, 2024));
    EXPECT_TRUE(logistics::yearLiesIn(winter, 2025));
    EXPECT_FALSE(logistics::yearLiesIn(winter, 2023));
    EXPECT_FALSE(logistics::yearLiesIn(winter, 2026));
    const DeliveryPeriod newYear = period("01.01.2021", "31.12.2024");
    EXPECT_TRUE(logistics::yearLiesIn(newYear, 2020)) << "of its first ISO week";
    EXPECT_TRUE(logistics::yearLiesIn(newYear, 2025)) << "of its last ISO week";
    EXPECT_TRUE(logistics::weekLiesIn(newYear, {2020, 53}));
    EXPECT_TRUE(logistics::weekLiesIn(newYear, {2025, 1}));
    EXPECT_TRUE(logistics::weekLiesIn(newYear, {2021, 1})) << "offered, and an ISO week of the period";
}

TEST(CalendarWeeks, WeekdaysAreNumberedFromSunday) {
    const std::vector<std::string> names{"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                         "Donnerstag", "Freitag", "Samstag"};
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(logistics::weekdayName(static_cast<std::int64_t>(i) + 1, base::Locale::german()), names[i]);
    EXPECT_EQ(logistics::weekdayName(2, base::Locale::english()), "Monday");
}

} // namespace
} // namespace tellurix::tests
