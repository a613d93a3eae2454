#include "module/logistics/plan/CalendarArea.h"
#include "module/parts/grids/KeyedRow.h"
#include "module/ui/controls/Chart.h"
#include "tests/logistics/LogisticsTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;

class LogisticsCalendar : public LogisticsTest {
protected:
    /// Opens the calendar weeks of a contract, and closes afterwards.
    void openWeeks(std::int32_t contract, const ScriptedDisplay::Script& script) {
        open(contract, [&](User& user) {
            user.select("SSTab1", 1);
            script(user);
            if (row("SELECT ID FROM WVO_VERTRAG WHERE ANGEMELDETEMENGE IS NULL AND ANGEMELDETE IS NULL AND "
                    "ID_VERTRAEGE = " +
                    std::to_string(contract)) != "no row")
                host.display.onMessage("Achtung!");
            user.click("btnClose");
        });
    }
    /// The list as the user sees it.
    static std::string weeks(User& user) {
        std::string text;
        for (const ui::Grid::Row& row : user.grid("DataGridKalendar").rows()) {
            for (const std::string& cell : row)
                text += (&cell == &row.front() ? "" : "|") + cell;
            text += "\n";
        }
        return text;
    }
    static void current(User& user, int row) { user.select("DataGridKalendar", row); }
    static void enter(User& user, const std::string& year, const std::string& week, const std::string& plan) {
        user.type("txtJahr", year);
        user.type("txtWoche", week);
        user.type("txtPlanmenge", plan);
    }
    /// The stored weeks of a contract as "year/week plan", in the order of their keys.
    std::string stored(std::int32_t contract) {
        std::string text;
        for (auto row = host.database.open(
                 "SELECT JAHR,WOCHE,PLANMENGE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = "
                 "(SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = " +
                 std::to_string(contract) + ") ORDER BY ID");
             !row->atEnd(); row->moveNext())
            text += (text.empty() ? "" : ", ") + written(row->field("JAHR")) + "/" +
                    written(row->field("WOCHE")) + " " + written(row->field("PLANMENGE"));
        return text;
    }
    std::string headings(User& user) {
        std::string text;
        for (const auto& column : user.grid("DataGridKalendar").columns())
            text += column.caption + "|";
        return text;
    }
    static constexpr const char* fibreWeeks = "2025/19 250.00, 2025/20 250.00, 2025/21 250.00, "
                                              "2025/22 300.00, 2025/23 450.00, 2025/24 NULL";
};

TEST_F(LogisticsCalendar, ShowsTheWeeksWithTheirDaysAndTheSumOfThePlan) {
    openWeeks(fibreWood, [&](User& user) {
        EXPECT_EQ(weeks(user), "2025/19|05.05.2025-11.05.2025|250,00\n"
                               "2025/20|12.05.2025-18.05.2025|250,00\n"
                               "2025/21|19.05.2025-25.05.2025|250,00\n"
                               "2025/22|26.05.2025-01.06.2025|300,00\n"
                               "2025/23|02.06.2025-08.06.2025|450,00\n"
                               "2025/24|09.06.2025-15.06.2025|\n");
        EXPECT_EQ(headings(user), "Jahr/Woche|Datum|Planmenge|");
        EXPECT_EQ(user.caption("frmKalenderwochen"), "Kalenderwochen   1500");
        EXPECT_FALSE(user.window().find("frmVergleich")->visible()) << "quantities in two units";
    });
}

TEST_F(LogisticsCalendar, ComparesThePlanWithAContractInOneUnit) {
    openWeeks(5, [&](User& user) {
        EXPECT_EQ(user.caption("lblPlanWert"), "210,00 Fm");
        EXPECT_EQ(user.caption("lblVertragWert"), "420,00 Fm");
        EXPECT_EQ(user.caption("lblDifferenzWert"), "210,00 Fm");
    });
    openWeeks(7, [&](User& user) {
        EXPECT_FALSE(user.window().find("frmVergleich")->visible()) << "the quantity has no unit";
        EXPECT_EQ(weeks(user), "") << "the row of the outer join is no week";
        EXPECT_EQ(user.caption("frmKalenderwochen"), "Kalenderwochen");
        EXPECT_FALSE(user.usable("btnBearbeiten1"));
        EXPECT_FALSE(user.usable("btnLoschen1"));
    });
}

TEST_F(LogisticsCalendar, AChartOfTheWeeksFollowsTheListAndLeadsThroughIt) {
    openWeeks(fibreWood, [&](User& user) {
        EXPECT_EQ(user.bars("chtPlan"), "[19:250] 20:250 21:250 22:300 23:450 24:0!");
        EXPECT_EQ(user.caption("lblOhneMenge"), "1 Woche ohne Menge: 24");
        user.clickHeading("DataGridKalendar", 2);
        user.clickHeading("DataGridKalendar", 2);
        EXPECT_EQ(user.bars("chtPlan"), "[19:250] 20:250 21:250 22:300 23:450 24:0!")
            << "in the order of time";
        user.select("chtPlan", 4);
        EXPECT_EQ(user.grid("DataGridKalendar").cell(user.grid("DataGridKalendar").currentRow(), 0),
                  "2025/23");
        EXPECT_EQ(user.focused(), "DataGridKalendar");
        EXPECT_TRUE(user.bars("chtPlan").ends_with("[23:450] 24:0!"));
        user.key(ui::Key::end);
        EXPECT_TRUE(user.bars("chtPlan").starts_with("19:")) << "marked is the row of the list";

        user.click("btnBearbeiten1");
        user.select("chtPlan", 0);
        EXPECT_EQ(user.focused(), "txtJahr") << "as in the list: no other week while one is edited";
        user.type("txtPlanmenge", "12,5");
        user.click("btnSpeichern1");
        EXPECT_NE(user.bars("chtPlan").find(":12,50"), std::string::npos) << user.bars("chtPlan");
        EXPECT_FALSE(user.control<ui::Chart>("chtPlan").today()) << "it is after the last week";
    });
    openWeeks(7, [&](User& user) { EXPECT_FALSE(user.usable("chtPlan")) << "there are no weeks"; });
}

TEST_F(LogisticsCalendar, FurtherColumnsOfTheRecordSetAreCaptioned) {
    auto row = host.database.open("SELECT 1 AS ID, 2 AS WHANG, 3 AS WHBES");
    parts::KeyedRow week{*row, "ID"};
    const auto columns = logistics::CalendarArea::columns(&week);
    ASSERT_EQ(columns.size(), 5u);
    EXPECT_EQ(columns[3].caption, "WH-Ang.");
    EXPECT_EQ(columns[4].caption, "WH-Bes.");
}

TEST_F(LogisticsCalendar, AHeadingSortsUpAndThenDown) {
    openWeeks(fibreWood, [&](User& user) {
        current(user, 3);
        struct Case {
            const char* rule;
            int heading;
            const char* order;
        };
        const Case cases[] = {
            {"the plan quantity", 2, " ORDER BY 6"},
            {"the same heading again", 2, " ORDER BY 6 DESC"},
            {"and once more", 2, " ORDER BY 6"},
            {"another one", 0, " ORDER BY 2"},
            {"dates in their order, which is that of the weeks", 1, " ORDER BY 2 DESC"},
        };
        for (const Case& c : cases) {
            user.clickHeading("DataGridKalendar", c.heading);
            EXPECT_TRUE(host.statements.end()[-2].ends_with(c.order)) << c.rule;
            EXPECT_EQ(user.grid("DataGridKalendar").cell(user.grid("DataGridKalendar").currentRow(), 0),
                      "2025/22")
                << c.rule << ": the cursor stays on its week";
        }
        EXPECT_TRUE(weeks(user).starts_with("2025/24"));
        user.click("btnNeu1");
        user.clickHeading("DataGridKalendar", 2);
        EXPECT_TRUE(weeks(user).starts_with("2025/24")) << "locked while a week is edited";
        user.click("btnAbbrechen1");
    });
}

TEST_F(LogisticsCalendar, GenerationMakesTheWeeksOfThePeriodAndSpreadsTheQuantity) {
    openWeeks(4, [&](User& user) {
        user.click("btnGenWeek");
        EXPECT_EQ(user.caption("lblMeldung"), "Wochen neu: 10, schon vorhanden: 0. Ersetzte Planmengen: 0.");
        user.click("btnGenWeek");
        EXPECT_EQ(user.caption("lblMeldung"), "Wochen neu: 0, schon vorhanden: 10. Ersetzte Planmengen: 10.");
        EXPECT_TRUE(user.usable("btnLoschen1"));
    });
    EXPECT_EQ(stored(4), "2024/48 85.00, 2024/49 85.00, 2024/50 85.00, 2024/51 85.00, 2024/52 85.00, "
                         "2025/1 85.00, 2025/2 85.00, 2025/3 85.00, 2025/4 85.00, 2025/5 85.00");
}

TEST_F(LogisticsCalendar, GenerationSendsTheGivenStatements) {
    openWeeks(6, [&](User& user) { // 01.02.2026 to 30.04.2026, without a logistics record before
        host.statements.clear();
        user.click("btnGenWeek");
        ASSERT_GT(host.statements.size(), 30u);
        EXPECT_EQ(
            host.statements[0],
            "SELECT WVO_VERTAG_KALENDER.ID FROM WVO_VERTAG_KALENDER INNER JOIN WVO_VERTRAG ON "
            "WVO_VERTAG_KALENDER.ID_WVO_VERTRAG = WVO_VERTRAG.ID  WHERE WVO_VERTRAG.ID_VERTRAEGE = 6 AND "
            "ISNULL(WVO_VERTAG_KALENDER.JAHR,0) = 2026 AND ISNULL(WVO_VERTAG_KALENDER.WOCHE,0) = 05");
        EXPECT_EQ(host.statements[1],
                  "INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG,JAHR,WOCHE,PLANMENGE) SELECT "
                  "WVO_VERTRAG.ID,2026,05,NULL FROM WVO_VERTRAG  WHERE WVO_VERTRAG.ID_VERTRAEGE = 6");
        const std::string record = value("SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 6");
        EXPECT_EQ(host.statements[29],
                  "UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = (SELECT ROUND(SUM(MENGE)/14,2) FROM "
                  "VERTRAG_MENGEN WHERE ID_VERTRAG = 6) WHERE ID_WVO_VERTRAG = " +
                      record);
        EXPECT_TRUE(host.statements[30].starts_with("SET NOCOUNT ON \r\nSET DATEFIRST 1\r\nDeclare"));
    });
}

TEST_F(LogisticsCalendar, GenerationOverwritesWeeksOutsideThePeriodToo) {
    openWeeks(5, [&](User& user) { // July to October 2024; week 40 is there with 210
        user.click("btnGenWeek");
        EXPECT_EQ(user.caption("lblMeldung"), "Wochen neu: 17, schon vorhanden: 1. Ersetzte Planmengen: 1.");
        user.click("btnNeu1");
        EXPECT_EQ(user.caption("lblMeldung"), "") << "told of the last generation only";
        user.click("btnAbbrechen1");
    });
    EXPECT_TRUE(stored(5).starts_with("2024/40 23.33, 2024/27 23.33")) << stored(5);
}

TEST_F(LogisticsCalendar, WithoutADeliveryPeriodNothingIsGeneratedOrOfferedOrChecked) {
    openWeeks(7, [&](User& user) {
        const std::string message = "Es wurde im Vertragskopf kein Lieferzeitraum eingegeben.";
        host.display.onMessage(message);
        user.click("btnGenWeek");
        user.click("btnNeu1");
        for (const char* box : {"txtJahr", "txtWoche"}) {
            host.display.onMessage(message);
            user.focus(box);
            user.ctrl();
        }
        enter(user, "1999", "77", "1");
        user.click("btnSpeichern1");
        EXPECT_EQ(weeks(user), "1999/77||1,00\n");
    });
    EXPECT_EQ(stored(7), "1999/77 1.00");
}

TEST_F(LogisticsCalendar, AGenerationThatFailsIsCompletedByTheNext) {
    openWeeks(4, [&](User& user) {
        host.database.failOn("2025,01,NULL");
        user.click("btnGenWeek");
        EXPECT_EQ(host.display.errors().size(), 1u);
        EXPECT_NE(weeks(user).find("2024/52"), std::string::npos) << "the weeks that were made are shown";
        host.database.failOn("");
        user.click("btnGenWeek");
        EXPECT_EQ(user.caption("lblMeldung"), "Wochen neu: 5, schon vorhanden: 5. Ersetzte Planmengen: 0.");
    });
}

TEST_F(LogisticsCalendar, AWeekOutsideThePeriodKeepsTheFocus) {
    struct Case {
        const char* rule;
        const char* year;
        const char* week;
        const char* refused; ///< the box, or empty
    };
    const Case cases[] = {
        {"a week of the period", "2024", "50", ""},
        {"the last week by the pickers' count", "2024", "53", ""},
        {"the year before", "2023", "", "txtJahr"},
        {"the year behind", "2026", "", "txtJahr"},
        {"a year of two digits", "24", "", "txtJahr"},
        {"an empty year", "", "50", ""},
        {"an empty week", "2024", "", ""},
        {"a week before the period", "2024", "47", "txtWoche"},
        {"a week behind the period", "2025", "6", "txtWoche"},
        {"no week", "2025", "0", "txtWoche"},
    };
    openWeeks(4, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.click("btnNeu1");
            if (*c.refused != '\0')
                host.display.onMessage("Jahr und Woche müssen im Lieferzeitraum liegen: 2024/48 - 2025/05!");
            user.type("txtJahr", c.year);
            user.key(ui::Key::tab);
            if (std::string{c.refused} != "txtJahr") {
                user.type("txtWoche", c.week);
                user.key(ui::Key::tab);
            }
            EXPECT_EQ(user.focused(), *c.refused == '\0' ? "txtPlanmenge" : c.refused);
            user.click("btnAbbrechen1"); // never held
            EXPECT_TRUE(user.usable("btnNeu1"));
        }
        user.click("btnNeu1");
        user.type("txtJahr", "1999");
        host.display.onMessage("Die Änderungen sind noch nicht gespeichert.", Answer::yes);
    });
}

TEST_F(LogisticsCalendar, AWeekThatWasThereBeforeThePeriodCanStillBeEdited) {
    openWeeks(16, [&](User& user) { // 2026/1, and the period ends with 2026
        EXPECT_EQ(weeks(user), "2026/01|29.12.2025-04.01.2026|12,50\n");
    });
    openWeeks(5, [&](User& user) {
        user.click("btnNeu1");
        enter(user, "2024", "44", "5");
        user.click("btnSpeichern1");
        user.click("btnBearbeiten1");
        EXPECT_EQ(user.text("txtJahr") + "/" + user.text("txtWoche"), "2024/44");
        user.key(ui::Key::tab);
        user.key(ui::Key::tab);
        EXPECT_EQ(user.focused(), "txtPlanmenge");
        user.click("btnAbbrechen1");
    });
}

TEST_F(LogisticsCalendar, ThePickersOfferThePeriod) {
    openWeeks(4, [&](User& user) {
        user.click("btnNeu1");
        user.focus("txtJahr");
        host.pickedText = "2025";
        user.ctrl();
        EXPECT_EQ(host.picks.back(), "SELECT 2024 AS Jahr UNION ALL SELECT 2025 AS Jahr/Jahr");
        EXPECT_EQ(user.text("txtJahr"), "2025");
        user.focus("txtWoche");
        host.pickedText = "05";
        user.ctrl();
        EXPECT_TRUE(host.picks.back().starts_with("SELECT '01' AS Woche UNION ALL")) << host.picks.back();
        EXPECT_TRUE(host.picks.back().ends_with("SELECT '05' AS Woche/KW")) << host.picks.back();
        user.type("txtPlanmenge", "7");
        user.click("btnSpeichern1");
    });
    EXPECT_EQ(stored(4), "2025/5 7.00");
}

TEST_F(LogisticsCalendar, SavingWritesOneWeek) {
    openWeeks(fibreWood, [&](User& user) {
        user.click("btnNeu1");
        enter(user, "2025", "24", "120");
        host.display.onMessage("Text 223 [KW]"); // that week is there
        user.click("btnSpeichern1");
        EXPECT_EQ(user.focused(), "txtWoche");
        current(user, 0);
        user.click("btnAbbrechen1");
        const auto boxes = [&] {
            return user.text("txtJahr") + "/" + user.text("txtWoche") + "/" + user.text("txtPlanmenge");
        };
        EXPECT_EQ(boxes(), "2025/19/250") << "discarded: the current one stands there again";

        current(user, 5);
        EXPECT_EQ(boxes(), "2025/24/");
        user.click("btnBearbeiten1");
        EXPECT_EQ(boxes(), "2025/24/");
        user.type("txtPlanmenge", "99");
        host.statements.clear();
        user.click("btnSpeichern1"); // its own year and week
        EXPECT_EQ(host.statements[0],
                  "SELECT ID FROM  WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = 1 AND JAHR = "
                  "2025 AND WOCHE = 24 AND ID<>6");
        EXPECT_EQ(host.statements[1], "SELECT ID,JAHR,WOCHE,PLANMENGE FROM WVO_VERTAG_KALENDER WHERE ID = 6")
            << "what a colleague has saved meanwhile";
        EXPECT_EQ(host.statements[2],
                  "UPDATE WVO_VERTAG_KALENDER SET JAHR = 2025,WOCHE = 24,PLANMENGE = 99 WHERE ID = 6");
        EXPECT_EQ(user.grid("DataGridKalendar").currentRow(), 5);
        EXPECT_EQ(user.caption("frmKalenderwochen"), "Kalenderwochen   1599");
    });
    EXPECT_EQ(stored(fibreWood), "2025/19 250.00, 2025/20 250.00, 2025/21 250.00, 2025/22 300.00, "
                                 "2025/23 450.00, 2025/24 99.00");
}

TEST_F(LogisticsCalendar, APlanQuantityThatNobodyTouchedIsSavedAsItWasRead) {
    openWeeks(16, [&](User& user) {
        user.click("btnBearbeiten1");
        EXPECT_EQ(user.text("txtPlanmenge"), "13") << "shown without decimals";
        user.type("txtWoche", "2");
        user.click("btnSpeichern1");
    });
    EXPECT_EQ(stored(16), "2026/2 12.50");
}

TEST_F(LogisticsCalendar, WhatIsMissingIsNamedAndNothingIsSaved) {
    struct Case {
        const char* rule;
        const char* year;
        const char* week;
        const char* plan;
        const char* message;
        const char* focus;
    };
    const Case cases[] = {
        {"no year", "", "20", "5", "Text 223 [Jahr]", "txtJahr"},
        {"no week", "2025", "", "5", "Text 223 [KW]", "txtWoche"},
        {"no plan quantity", "2025", "23", "", "Text 223 [Planmenge]", "txtPlanmenge"},
    };
    openWeeks(fibreWood, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.click("btnNeu1");
            enter(user, c.year, c.week, c.plan);
            host.display.onMessage(c.message);
            user.click("btnSpeichern1");
            EXPECT_EQ(user.focused(), c.focus);
            user.click("btnAbbrechen1");
        }
    });
    EXPECT_EQ(stored(fibreWood), fibreWeeks);
}

TEST_F(LogisticsCalendar, AFailedSaveLeavesNoRowBehind) {
    openWeeks(4, [&](User& user) {
        user.click("btnNeu1");
        enter(user, "2024", "50", "5");
        host.database.failOn("SET JAHR");
        user.click("btnSpeichern1");
        EXPECT_EQ(user.text("txtPlanmenge"), "5") << "everything typed is still there";
        host.database.failOn("");
        user.click("btnSpeichern1");
        EXPECT_EQ(stored(4), "2024/50 5.00") << "into the row that was there";

        user.click("btnNeu1");
        enter(user, "2024", "51", "6");
        host.database.failOn("SET JAHR");
        user.click("btnSpeichern1");
        host.database.failOn("");
        user.click("btnAbbrechen1");
        EXPECT_EQ(weeks(user), "2024/50|09.12.2024-15.12.2024|5,00\n");

        user.click("btnNeu1");
        enter(user, "2024", "51", "12,5");
        user.key(ui::Key::tab);
        EXPECT_EQ(user.text("txtPlanmenge"), "12,5") << "what was typed is not rounded to what is shown";
        host.database.failOn("SET JAHR");
        user.click("btnSpeichern1");
        host.database.failOn("");
        host.display.onMessage("nicht gespeichert", Answer::yes);
    });
    EXPECT_EQ(stored(4), "2024/50 5.00");
    EXPECT_EQ(host.display.errors().size(), 3u);
    openWeeks(4, [&](User& user) {
        host.database.execute(
            "DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = (SELECT ID FROM WVO_VERTRAG WHERE "
            "ID_VERTRAEGE = 4)");
        user.clickHeading("DataGridKalendar", 1);
        EXPECT_FALSE(user.usable("btnBearbeiten1")) << "no week is left to be edited";
    });
}

TEST_F(LogisticsCalendar, AWeekThatAColleagueDeletedIsSavedAnew) {
    openWeeks(fibreWood, [&](User& user) {
        current(user, 2);
        user.click("btnBearbeiten1");
        user.type("txtPlanmenge", "77");
        host.database.execute("DELETE FROM WVO_VERTAG_KALENDER WHERE ID = 3");
        user.click("btnSpeichern1");
        EXPECT_NE(host.display.errors().back().find("Diese Woche hat inzwischen jemand anderer gelöscht."),
                  std::string::npos);
        EXPECT_EQ(user.text("txtPlanmenge"), "77");
        user.click("btnSpeichern1");
        EXPECT_TRUE(user.usable("btnNeu1"));
    });
    EXPECT_TRUE(stored(fibreWood).ends_with("2025/24 NULL, 2025/21 77.00")) << stored(fibreWood);
}

TEST_F(LogisticsCalendar, DeletingAsksAndTakesTheCurrentWeek) {
    openWeeks(fibreWood, [&](User& user) {
        current(user, 1);
        host.display.onMessage("Text 215", Answer::no);
        user.click("btnLoschen1");
        EXPECT_EQ(stored(fibreWood), fibreWeeks);
        host.display.onMessage("Text 215", Answer::yes);
        host.statements.clear();
        user.click("btnLoschen1");
        EXPECT_EQ(host.statements[0], "DELETE FROM WVO_VERTAG_KALENDER WHERE ID = 2");
        EXPECT_EQ(user.grid("DataGridKalendar").cell(user.grid("DataGridKalendar").currentRow(), 0),
                  "2025/21");
        EXPECT_EQ(host.display.messages().back().flags,
                  ui::box::yesNo + ui::box::exclamation + ui::box::defaultButton2);
        for (int left = 5; left > 0; --left) {
            host.display.onMessage("Text 215", Answer::yes);
            user.click("btnLoschen1");
        }
        EXPECT_FALSE(user.usable("btnLoschen1"));
        EXPECT_TRUE(user.usable("btnGenWeek"));
    });
    EXPECT_EQ(stored(fibreWood), "");
}

TEST_F(LogisticsCalendar, WhatAColleagueHasSavedOfTheSameWeekIsKeptOrAskedAbout) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed;
        const char* colleague;
        const char* difference; ///< null: nothing is asked
        const char* button;
        const char* stored;
    };
    const Case cases[] = {
        {"another field", "txtWoche", "30", "PLANMENGE = 5.55", nullptr, "", "2025 | 30 | 5.55"},
        {"the week, written otherwise", "txtWoche", "07", "WOCHE = 7", nullptr, "", "2025 | 7 | 250.25"},
        {"the same field, mine", "txtPlanmenge", "77", "PLANMENGE = 55.5",
         "Planmenge – Sie: 77,00 – inzwischen: 55,50", "btnMeines", "2025 | 19 | 77.00"},
        {"the same field, theirs", "txtPlanmenge", "77", "PLANMENGE = 55.5",
         "Planmenge – Sie: 77,00 – inzwischen: 55,50", "btnDeren", "2025 | 19 | 55.50"},
        {"the same field, back", "txtPlanmenge", "77", "PLANMENGE = 55.5",
         "Planmenge – Sie: 77,00 – inzwischen: 55,50", "btnZuruck", "2025 | 19 | 55.50"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.database.execute("UPDATE WVO_VERTAG_KALENDER SET WOCHE = 19,PLANMENGE = 250.25 WHERE ID = 1");
        host.database.execute(
            "UPDATE VERTRAEGE SET LIEFERVON = NULL WHERE ID_VERTRAG = 3"); // any week can be typed
        openWeeks(fibreWood, [&](User& user) {
            current(user, 0);
            user.click("btnBearbeiten1");
            user.type(c.box, c.typed);
            host.database.execute(std::string{"UPDATE WVO_VERTAG_KALENDER SET "} + c.colleague +
                                  " WHERE ID = 1");
            if (c.difference != nullptr) onConflict(c.difference, c.button);
            user.click("btnSpeichern1");
            EXPECT_EQ(user.status().find("übernommen: Planmenge 250,25 → 5,55.") != std::string::npos,
                      std::string{c.rule} == "another field");
            if (user.usable("btnAbbrechen1")) user.click("btnAbbrechen1");
        });
        EXPECT_EQ(row("SELECT JAHR,WOCHE,PLANMENGE FROM WVO_VERTAG_KALENDER WHERE ID = 1"), c.stored);
    }
}

TEST_F(LogisticsCalendar, AWeekThatBecomesAnotherOnesByAColleaguesYearIsRefused) {
    host.database.execute("UPDATE VERTRAEGE SET LIEFERVON = NULL WHERE ID_VERTRAG = 3");
    host.display.onMessage("Text 223 [KW]");
    openWeeks(fibreWood, [&](User& user) {
        host.database.execute("UPDATE WVO_VERTAG_KALENDER SET JAHR = 2026 WHERE ID = 2");
        current(user, 0);
        user.click("btnBearbeiten1");
        user.type("txtWoche", "20");
        host.database.execute("UPDATE WVO_VERTAG_KALENDER SET JAHR = 2026 WHERE ID = 1");
        user.click("btnSpeichern1");
        EXPECT_EQ(user.focused(), "txtWoche");
        user.click("btnAbbrechen1");
    });
}

TEST_F(LogisticsCalendar, AGenerationIsUndone) {
    struct Case {
        const char* rule;
        std::function<void(User&)> since;
        const char* said;
        const char* stored;
    };
    const char* before = "2024/40 210.00";
    const Case cases[] = {
        {"at once", [](User&) {}, "Die Wochen sind wieder wie vorher.", before},
        {"a week was deleted since",
         [this](User&) {
             host.database.execute("DELETE FROM WVO_VERTAG_KALENDER WHERE WOCHE = 27 AND JAHR = 2024");
         },
         "Die Wochen sind wieder wie vorher.", before},
        {"weeks were planned since",
         [this](User&) {
             host.database.execute(
                 "UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = 5 WHERE JAHR = 2024 AND WOCHE = 27");
             host.database.execute(
                 "UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = 6 WHERE JAHR = 2024 AND WOCHE = 40");
         },
         "Die Wochen sind wieder wie vorher, bis auf 2: Diese hat inzwischen jemand geändert.",
         "2024/40 6.00, 2024/27 5.00"},
        {"a colleague has added one since",
         [this](User&) {
             host.database.execute(
                 "INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG,JAHR,WOCHE,PLANMENGE) SELECT "
                 "ID,2025,3,9 FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 5");
         },
         "Die Wochen sind wieder wie vorher.", "2024/40 210.00, 2025/3 9.00"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        openWeeks(5, [&](User& user) {
            user.click("btnGenWeek");
            EXPECT_EQ(user.status(), "Wochen automatisch erstellt.|&Rückgängig");
            user.click("btnNeu1");
            user.pressStatus();
            EXPECT_EQ(host.display.errors().back(), "Bitte zuerst die Bearbeitung speichern oder abbrechen.");
            user.click("btnAbbrechen1");
            c.since(user);
            user.pressStatus();
            EXPECT_EQ(user.status(), c.said);
            EXPECT_EQ(user.caption("lblMeldung"), "");
        });
        EXPECT_EQ(stored(5), c.stored);
        host.database.execute(
            "DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG = (SELECT ID FROM WVO_VERTRAG "
            "WHERE ID_VERTRAEGE = 5) AND (WOCHE <> 40 OR JAHR <> 2024)");
        host.database.execute(
            "UPDATE WVO_VERTAG_KALENDER SET PLANMENGE = 210 WHERE JAHR = 2024 AND WOCHE = 40");
    }
}

TEST_F(LogisticsCalendar, TwoGenerationsAreUndoneOneAfterTheOther) {
    openWeeks(5, [&](User& user) {
        user.click("btnGenWeek");
        const std::string first = stored(5);
        host.database.execute("UPDATE VERTRAG_MENGEN SET MENGE = MENGE * 2 WHERE ID_VERTRAG = 5");
        user.click("btnGenWeek");
        user.pressStatus();
        EXPECT_EQ(stored(5), first);
        user.pressStatus();
    });
    EXPECT_EQ(stored(5), "2024/40 210.00");
}

TEST_F(LogisticsCalendar, WhatAFailedGenerationHasMadeIsUndone) {
    openWeeks(5, [&](User& user) {
        host.database.failOn("2024,30,NULL");
        user.click("btnGenWeek");
        host.database.failOn("");
        EXPECT_EQ(stored(5), "2024/40 210.00, 2024/27 NULL, 2024/28 NULL, 2024/29 NULL");
        user.pressStatus();
    });
    EXPECT_EQ(stored(5), "2024/40 210.00");
}

} // namespace
} // namespace tellurix::tests
