#include "module/base/date_format.h"
#include "standin/services/pickers/F_Calendar.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using base::Locale;
using ui::Key;

base::Date day(const char* text) {
    return base::parseDate(text).value();
}

/// Opens a calendar on a day, lets the user work in it, and gives the answer; "none" when cancelled.
std::string chosenDay(const char* start, const ScriptedDisplay::Script& script) {
    ScriptedDisplay display;
    standin::F_Calendar calendar{"Datum", day(start), day("09.03.2026"), Locale::german()};
    display.onWindow("F_Calendar", script);
    display.showModal(calendar);
    if (!calendar.chosen()) return "none";
    return base::dateText(*calendar.chosen());
}

TEST(Calendar, KeysGoOverTheEndsOfMonthsAndYears) {
    struct Case {
        const char* rule;
        const char* start;
        Key key;
        bool shift;
        const char* answer;
    };
    const Case cases[] = {
        {"a day back over the start of a year", "01.01.2026", Key::left, false, "31.12.2025"},
        {"a day on over the end of a month", "31.01.2026", Key::right, false, "01.02.2026"},
        {"a day on into a leap day", "28.02.2028", Key::right, false, "29.02.2028"},
        {"a week back over the start of a month", "05.03.2026", Key::up, false, "26.02.2026"},
        {"a week on over the end of a year", "29.12.2025", Key::down, false, "05.01.2026"},
        {"a month on to its last day", "31.01.2026", Key::pageDown, false, "28.02.2026"},
        {"a month on to its leap day", "31.01.2028", Key::pageDown, false, "29.02.2028"},
        {"a month back over the start of a year", "15.01.2026", Key::pageUp, false, "15.12.2025"},
        {"a year back from a leap day", "29.02.2028", Key::pageUp, true, "28.02.2027"},
        {"a year on", "09.03.2026", Key::pageDown, true, "09.03.2027"},
        {"to the first of the month", "28.02.2026", Key::home, false, "01.02.2026"},
        {"to the last of the month", "01.02.2028", Key::end, false, "29.02.2028"},
        {"never before what the database holds", "01.01.1753", Key::left, false, "01.01.1753"},
        {"never after what the database holds", "31.12.9999", Key::pageDown, false, "31.12.9999"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(chosenDay(c.start,
                            [&](User& user) {
                                user.key(c.key, c.shift);
                                user.key(Key::enter);
                            }),
                  c.answer)
            << c.rule;
    }
}

TEST(Calendar, WeeksStartOnMondayAndCarryTheirIsoNumber) {
    struct Case {
        const char* rule;
        const char* month;
        int row;
        std::vector<std::string> cells;
    };
    const Case cases[] = {
        {"January starts in the last week of the old year",
         "10.01.2027",
         0,
         {"53", "", "", "", "", "1", "2", "3"}},
        {"then week 1", "10.01.2027", 1, {"1", "4", "5", "6", "7", "8", "9", "10"}},
        {"December ends in week 1 of the new year", "05.12.2024", 5, {"1", "30", "31", "", "", "", "", ""}},
        {"a year that starts on a Thursday starts with week 1",
         "05.01.2026",
         0,
         {"1", "", "", "", "1", "2", "3", "4"}},
        {"a month of four weeks has no number beyond it", "05.02.2027", 4, {"", "", "", "", "", "", "", ""}},
    };
    for (const Case& c : cases) {
        chosenDay(c.month, [&](User& user) {
            EXPECT_EQ(user.grid("grdDays").rows()[static_cast<std::size_t>(c.row)], c.cells) << c.rule;
            user.key(Key::escape);
        });
    }
}

TEST(Calendar, ThePointerAndTheButtonsChoose) {
    struct Case {
        const char* rule;
        ScriptedDisplay::Script script;
        const char* answer;
    };
    const Case cases[] = {
        {"a double click chooses the day under it",
         [](User& user) {
             user.select("grdDays", 1, 2);
             user.doubleClick("grdDays");
         },
         "03.02.2026"},
        {"the number of a week is no day",
         [](User& user) {
             user.select("grdDays", 1, 0);
             user.doubleClick("grdDays");
             user.close();
         },
         "none"},
        {"a place before the month is no day",
         [](User& user) {
             user.select("grdDays", 0, 1);
             user.doubleClick("grdDays");
             user.close();
         },
         "none"},
        {"the button of the next month",
         [](User& user) {
             user.click("btnNext");
             user.click("btnOk");
         },
         "15.03.2026"},
        {"today is chosen at once", [](User& user) { user.alt(U'h'); }, "09.03.2026"},
        {"Esc cancels", [](User& user) { user.key(Key::escape); }, "none"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(chosenDay("15.02.2026", c.script), c.answer) << c.rule;
}

TEST(Calendar, TellsTheMonthAndTheDay) {
    chosenDay("31.01.2026", [](User& user) {
        user.key(Key::right);
        EXPECT_EQ(user.caption("lblMonth"), "Februar 2026");
        EXPECT_EQ(user.caption("lblDay"), "Sonntag, 01.02.2026");
        user.key(Key::escape);
    });
}

} // namespace
} // namespace tellurix::tests
