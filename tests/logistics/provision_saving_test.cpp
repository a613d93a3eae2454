#include "module/ui/controls/ProgressBar.h"
#include "tests/logistics/ProvisionTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

struct ProvisionSaving : ProvisionTest {};

TEST_F(ProvisionSaving, AreWrittenRowByRow) {
    const std::string made =
        std::to_string(std::stoi(value("SELECT IDENT_CURRENT('WVO_BEREITMELDUNG_KW')")) + 1);
    edit([&](User& user) {
        enter(user, 0, carrier, "");
        enter(user, 1, announced, "");
        enter(user, 2, confirmed, "9999");
        enter(user, 2, carrier, "Kögl; 2");
        EXPECT_EQ(list(user), "3001|*|4|3|\n3002|*|||\n3003|*||9999|Kögl; 2\n"
                              "3005|fehlt|||\n");
        EXPECT_EQ(sums(user), "4 10.002 / 11 10.008") << "as typed";
        host.statements.clear();
        host.display.onMessage("Verwerfen?", Answer::no);
        user.key(Key::escape);
        user.click("btnSpeichern");
        EXPECT_EQ(user.status(), "Gespeichert");
        EXPECT_EQ(host.statements.front(),
                  "SELECT ID,ID_PERSONAL_WH AS ID_PERSONAL,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT FROM "
                  "WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = 3 AND JAHR = 2025 AND WOCHE = 23");
        EXPECT_EQ(writes(),
                  (std::vector<std::string>{
                      "UPDATE WVO_BEREITMELDUNG_KW SET WVO_BEREITMELDUNG_KW.ZUEGE = 4,"
                      "WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT = 3,WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT = '',"
                      "DATUM_CHANGE_ZENT = '09.03.2026 08:00:00' WHERE ID = 1 AND   ( "
                      "ISNULL(WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT,0) <> 3 OR "
                      "ISNULL(WVO_BEREITMELDUNG_KW.ZUEGE,0) <> 4 OR "
                      "ISNULL(WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT,'') <> '')",
                      "DELETE FROM WVO_BEREITMELDUNG_KW WHERE ID = 2",
                      "SET NOCOUNT ON\r\nINSERT INTO WVO_BEREITMELDUNG_KW "
                      "(ID_PERSONAL_WH,ID_VERTRAEGE,JAHR,WOCHE,DATUM_GENERATE) VALUES "
                      "(22,3,2025,23,GETDATE())\r\nSELECT IDENT_CURRENT('WVO_BEREITMELDUNG_KW')",
                      "UPDATE WVO_BEREITMELDUNG_KW SET WVO_BEREITMELDUNG_KW.ZUEGE = NULL,"
                      "WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT = 9999,WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT = "
                      "'Kögl; 2',DATUM_CHANGE_ZENT = '09.03.2026 08:00:00' WHERE ID = " +
                          made +
                          " AND   ( "
                          "ISNULL(WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT,0) <> 9999 OR "
                          "ISNULL(WVO_BEREITMELDUNG_KW.ZUEGE,0) <> NULL OR "
                          "ISNULL(WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT,'') <> 'Kögl; 2')"}));
        EXPECT_FALSE(user.usable("btnSpeichern")) << "in view mode again";
        EXPECT_EQ(user.caption("lblGemeldet"), "2 von 4 haben gemeldet");
        EXPECT_EQ(user.focused(), "MSFG");
    });
    EXPECT_EQ(stored("ID_PERSONAL_WH,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT,DATUM_GENERATE"),
              "[20 | 4 | 3 |  | 2025-05-29 07:05:00][22 | NULL | 9999 | Kögl; 2 | 2026-03-09 08:00:00]");
}

TEST_F(ProvisionSaving, SayWhatBecomesOfARow) {
    struct Typed {
        int row;
        int column;
        const char* text;
    };
    struct Case {
        const char* rule;
        std::vector<Typed> typed;
        const char* reports; ///< stored afterwards
        const char* told = nullptr;
    };
    constexpr const char* huber = "[20 | 4 | 3 | Fuhrwerk Reisinger | 2025-05-30 09:20:00]";
    constexpr const char* mueller = "[21 | 2 | NULL | NULL | NULL]";
    const std::string both = std::string{huber} + mueller;
    const std::string stamp = "2026-03-09 08:00:00]";
    const std::string changed = "[20 | 4 | 3 | Kögl | " + stamp + mueller;
    const std::string onlyCarrier = both + "[22 | NULL | NULL | Kögl | " + stamp;
    const std::string cleared = std::string{huber} + "[21 | NULL | 1 |  | " + stamp;
    const Case cases[] = {
        {"nothing typed changes no stamp and creates no report", {}, both.c_str()},
        {"the same again changes none",
         {{0, announced, "4"}, {0, carrier, "Fuhrwerk Reisinger"}},
         both.c_str()},
        {"a change moves the stamp of its row", {{0, carrier, "Kögl"}}, changed.c_str()},
        {"a carrier alone is a report", {{2, carrier, "Kögl"}}, onlyCarrier.c_str()},
        {"all three emptied delete it", {{1, announced, ""}}, huber},
        {"typed and emptied again is no report", {{2, announced, "5"}, {2, announced, ""}}, both.c_str()},
        {"a number is emptied along with another change",
         {{1, announced, ""}, {1, confirmed, "1"}},
         cleared.c_str()},
        {"but not alone, because nothing is <> NULL",
         {{0, announced, ""}, {0, confirmed, ""}},
         both.c_str(),
         "Nicht alles gespeichert wurde bei: Huber Josef."},
        {"nor do other capital letters alone",
         {{0, carrier, "FUHRWERK REISINGER"}},
         both.c_str(),
         "Huber Josef. Eine gelöschte Zahl, eine 0 und andere Groß- und Kleinschreibung werden nur"},
        {"a zero alone does not differ: an empty report, which the next saving deletes",
         {{2, announced, "0"}},
         both.c_str(),
         "bei: Öllinger Franz."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        if (c.told != nullptr) host.display.onMessage(c.told);
        edit([&](User& user) {
            for (const Typed& typed : c.typed)
                enter(user, typed.row, typed.column, typed.text);
            user.click("btnSpeichern");
            user.click("btnBearbeiten");
            user.click("btnSpeichern"); // once more, with nothing typed
        });
        EXPECT_EQ(stored("ID_PERSONAL_WH,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT,DATUM_CHANGE_ZENT"), c.reports);
        host.database.execute(
            "DELETE FROM WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = 3 AND JAHR = 2025 AND WOCHE = 23");
        host.database.execute(
            "SET IDENTITY_INSERT WVO_BEREITMELDUNG_KW ON\nINSERT INTO WVO_BEREITMELDUNG_KW (ID, "
            "ID_PERSONAL_WH, ID_VERTRAEGE, JAHR, WOCHE, ZUEGE, ZUEG_ZUGESAGT, FRAECHTER_TEXT, "
            "DATUM_CHANGE_ZENT) VALUES (1, 20, 3, 2025, 23, 4, 3, 'Fuhrwerk Reisinger', '20250530 09:20:00'),"
            "(2, 21, 3, 2025, 23, 2, NULL, NULL, NULL)\nSET IDENTITY_INSERT WVO_BEREITMELDUNG_KW OFF");
    }
}

TEST_F(ProvisionSaving, ACarrierOfSomebodyElseThatCannotBeQuotedIsNotSent) {
    host.database.execute(
        "UPDATE WVO_BEREITMELDUNG_KW SET FRAECHTER_TEXT = 'D''Angelo' WHERE ID = 1 OR ID = 2");
    edit([&](User& user) {
        enter(user, 0, confirmed, "4");
        host.statements.clear();
        user.click("chkOhneMeldung");
        user.click("btnSpeichern");
        EXPECT_EQ(lastError().find("Bemerkung „D'Angelo“: "), 0U) << lastError();
        EXPECT_EQ(user.focused(), "MSFG");
        EXPECT_EQ(user.grid("MSFG").currentRow(), 0);
        EXPECT_EQ(user.grid("MSFG").currentColumn(), carrier);
        EXPECT_EQ(writes(), std::vector<std::string>{});
        enter(user, 0, carrier, "D´Angelo");
        user.click("btnSpeichern");
        EXPECT_EQ(writes().size(), 1U) << "the row that nobody typed into is left alone";
    });
    EXPECT_EQ(stored(), "[20 | 4 | 4 | D´Angelo][21 | 2 | NULL | D'Angelo]");
}

TEST_F(ProvisionSaving, ACarrierThatCameFromAColleagueIsRefusedBeforeTheFirstRowIsWritten) {
    edit([&](User& user) {
        enter(user, 0, confirmed, "4");
        enter(user, 1, confirmed, "2");
        host.database.execute("UPDATE WVO_BEREITMELDUNG_KW SET FRAECHTER_TEXT = 'D''Angelo' WHERE ID = 2");
        host.statements.clear();
        user.click("btnSpeichern");
        EXPECT_EQ(lastError().find("Bemerkung „D'Angelo“: "), 0U) << lastError();
        EXPECT_EQ(user.grid("MSFG").currentRow(), 1);
        EXPECT_EQ(writes(), std::vector<std::string>{});
    });
    EXPECT_EQ(stored(), "[20 | 4 | 3 | Fuhrwerk Reisinger][21 | 2 | NULL | D'Angelo]");
}

TEST_F(ProvisionSaving, RowsAreWrittenInTheOrderOfTheGrid) {
    edit([&](User& user) {
        enter(user, 0, confirmed, "1");
        enter(user, 1, confirmed, "1");
        user.grid("MSFG").onHeadingClick(0);
        user.grid("MSFG").onHeadingClick(0);
        EXPECT_EQ(list(user), "3005|fehlt|||\n3003|fehlt|||\n3002|*|2|1|\n3001|*|4|1|Fuhrwerk Reisinger\n");
        host.statements.clear();
        user.click("btnSpeichern");
        ASSERT_EQ(writes().size(), 2U);
        EXPECT_NE(writes()[0].find("WHERE ID = 2 "), std::string::npos) << writes()[0];
        EXPECT_NE(writes()[1].find("WHERE ID = 1 "), std::string::npos) << writes()[1];
    });
}

TEST_F(ProvisionSaving, AFailureInBetweenLeavesTheRestTyped) {
    edit([&](User& user) {
        enter(user, 0, confirmed, "4");
        enter(user, 1, confirmed, "2");
        enter(user, 2, announced, "1");
        host.database.failOn("ZUEGE = 1,");
        const auto errors = host.display.errors().size();
        user.click("btnSpeichern");
        ASSERT_EQ(host.display.errors().size(), errors + 2);
        EXPECT_EQ(host.display.errors()[errors], "connection lost");
        EXPECT_EQ(lastError().find("Das Speichern brach bei „Öllinger Franz“ ab. Geschrieben sind 2 "
                                   "von 3 geänderten Zeilen."),
                  0U)
            << lastError();
        EXPECT_EQ(list(user), "3001||4|4|Fuhrwerk Reisinger\n3002||2|2|\n3003|*|1||\n3005|fehlt|||\n");
        EXPECT_FALSE(user.control<ui::ProgressBar>("pgbSpeichern").visible());
        EXPECT_TRUE(user.usable("btnSpeichern"));
        host.database.failOn("");
        host.statements.clear();
        user.click("btnSpeichern");
        EXPECT_EQ(list(user), "3001||4|4|Fuhrwerk Reisinger\n3002||2|2|\n3003||1||\n3005|fehlt|||\n");
    });
    EXPECT_EQ(stored(), "[20 | 4 | 4 | Fuhrwerk Reisinger][21 | 2 | 2 | ][22 | 1 | NULL | ]")
        << "the report that was made is not made again";
}

TEST_F(ProvisionSaving, KeepWhatOthersHaveDoneMeanwhile) {
    edit([&](User& user) {
        enter(user, 0, confirmed, "1");
        enter(user, 1, confirmed, "2");
        enter(user, 2, confirmed, "5");
        // A colleague deletes one report and changes another one, two helpers report.
        host.database.execute("DELETE FROM WVO_BEREITMELDUNG_KW WHERE ID = 2");
        host.database.execute("UPDATE WVO_BEREITMELDUNG_KW SET FRAECHTER_TEXT = 'Selbst' WHERE ID = 1");
        host.database.execute(
            "INSERT INTO WVO_BEREITMELDUNG_KW (ID_PERSONAL_WH,ID_VERTRAEGE,JAHR,WOCHE,ZUEGE) VALUES "
            "(22,3,2025,23,6),(24,3,2025,23,7)");
        user.click("btnSpeichern");
        EXPECT_EQ(lastError().find("Jemand anderer hat die Meldung inzwischen gelöscht: Müller Käthe."), 0U)
            << lastError();
        EXPECT_EQ(stored(), "[20 | 4 | 1 | Selbst][22 | 6 | 5 | ][24 | 7 | NULL | NULL]");
        EXPECT_EQ(list(user), "3001||4|1|Selbst\n3002|*||2|\n3003||6|5|\n3005||7||\n");
        EXPECT_EQ(user.caption("lblGemeldet"), "3 von 4 haben gemeldet");
        user.click("btnSpeichern");
        EXPECT_EQ(list(user), "3001||4|1|Selbst\n3002|||2|\n3003||6|5|\n3005||7||\n");
    });
    EXPECT_EQ(stored(), "[20 | 4 | 1 | Selbst][22 | 6 | 5 | ][24 | 7 | NULL | NULL][21 | NULL | 2 | ]");
}

TEST_F(ProvisionSaving, ASavingThatStopsTellsWhoseReportIsGone) {
    edit([&](User& user) {
        enter(user, 1, confirmed, "2");
        enter(user, 2, confirmed, "5");
        host.database.execute("DELETE FROM WVO_BEREITMELDUNG_KW WHERE ID = 2");
        host.database.failOn("INSERT INTO WVO_BEREITMELDUNG_KW");
        user.click("btnSpeichern");
        host.database.failOn("");
        EXPECT_NE(lastError().find("Jemand anderer hat die Meldung inzwischen gelöscht: Müller Käthe."),
                  std::string::npos)
            << lastError();
        // What is saved now makes a new report of hers, and the user knows it.
        user.click("btnSpeichern");
    });
    EXPECT_EQ(stored(), "[20 | 4 | 3 | Fuhrwerk Reisinger][21 | NULL | 2 | ][22 | NULL | 5 | ]");
}

TEST_F(ProvisionSaving, WhatCameFromAColleagueIsToldThoughTheUserFirstWentBack) {
    edit([&](User& user) {
        enter(user, 0, confirmed, "2");
        host.database.execute(
            "UPDATE WVO_BEREITMELDUNG_KW SET ZUEG_ZUGESAGT = 7,FRAECHTER_TEXT = 'Bahn' WHERE ID = 1");
        for (const char* button : {"btnZuruck", "btnMeines"}) {
            onConflict("Huber Josef, Züge zugesagt – Sie: 2 – inzwischen: 7", button);
            user.click("btnSpeichern");
        }
        EXPECT_NE(user.status().find("Huber Josef, Bemerkung"), std::string::npos) << user.status();
    });
}

TEST_F(ProvisionSaving, WhatBothHaveChangedIsAskedAbout) {
    struct Case {
        const char* rule;
        int column;
        const char* typed;
        const char* colleague; ///< what he changes of the first report
        const char* difference;
        const char* mine;
        const char* theirs;
    };
    const Case cases[] = {
        {"loads", confirmed, "2", "ZUEG_ZUGESAGT = 7", "Huber Josef, Züge zugesagt – Sie: 2 – inzwischen: 7",
         "[20 | 4 | 2 | Fuhrwerk Reisinger]", "[20 | 4 | 7 | Fuhrwerk Reisinger]"},
        {"a carrier", carrier, "Selbst", "FRAECHTER_TEXT = 'Bahn'",
         "Huber Josef, Bemerkung – Sie: Selbst – inzwischen: Bahn", "[20 | 4 | 3 | Selbst]",
         "[20 | 4 | 3 | Bahn]"},
        {"loads that were emptied", confirmed, "2", "ZUEG_ZUGESAGT = NULL",
         "Huber Josef, Züge zugesagt – Sie: 2 – inzwischen: (leer)", "[20 | 4 | 2 | Fuhrwerk Reisinger]",
         "[20 | 4 | NULL | Fuhrwerk Reisinger]"},
    };
    for (const Case& c : cases) {
        for (const char* button : {"btnMeines", "btnDeren", "btnZuruck"}) {
            SCOPED_TRACE(std::string{c.rule} + " " + button);
            host.database.execute("UPDATE WVO_BEREITMELDUNG_KW SET ZUEGE = 4,ZUEG_ZUGESAGT = 3,"
                                  "FRAECHTER_TEXT = 'Fuhrwerk Reisinger' WHERE ID = 1");
            edit([&](User& user) {
                enter(user, 0, c.column, c.typed);
                host.database.execute(std::string{"UPDATE WVO_BEREITMELDUNG_KW SET "} + c.colleague +
                                      " WHERE ID = 1");
                host.statements.clear();
                onConflict(c.difference, button);
                user.click("btnSpeichern");
                const bool goesBack = button == std::string{"btnZuruck"};
                EXPECT_EQ(user.usable("btnSpeichern"), goesBack);
                EXPECT_EQ(user.grid("MSFG").cell(0, 2), goesBack ? "*" : "");
            });
            EXPECT_EQ(stored()
                          .substr(0, std::string{c.mine}.size() + 20)
                          .find(button == std::string{"btnMeines"} ? c.mine : c.theirs),
                      0U)
                << stored();
        }
    }
}

} // namespace
} // namespace tellurix::tests
