#include "module/base/iso_week.h"

#include "module/base/date_format.h"

#include <gtest/gtest.h>

namespace tellurix::base {
namespace {

TEST(IsoWeek, BelongsToTheYearOfItsThursday) {
    struct Case {
        const char* rule;
        const char* day;
        IsoWeek week;
        const char* monday;
    };
    const Case cases[] = {
        {"a day in the middle", "2025-06-05", {2025, 23}, "02.06.2025"},
        {"a Monday is its own", "2025-06-02", {2025, 23}, "02.06.2025"},
        {"a Sunday ends its week", "2025-06-08", {2025, 23}, "02.06.2025"},
        {"New Year on a Thursday begins week 1", "2026-01-01", {2026, 1}, "29.12.2025"},
        {"New Year on a Friday ends the last week", "2021-01-01", {2020, 53}, "28.12.2020"},
        {"New Year on a Sunday, of a year of 52 weeks", "2023-01-01", {2022, 52}, "26.12.2022"},
        {"the last days of a year in the first week", "2024-12-31", {2025, 1}, "30.12.2024"},
        {"a year of 53 weeks", "2020-12-31", {2020, 53}, "28.12.2020"},
        {"the first year of the calendar", "1753-01-01", {1753, 1}, "01.01.1753"},
    };
    for (const Case& c : cases) {
        const Date day = parseDate(c.day).value();
        EXPECT_EQ(isoWeekOf(day), c.week) << c.rule;
        EXPECT_EQ(dateText(mondayOf(day)), c.monday) << c.rule;
    }
}

} // namespace
} // namespace tellurix::base
