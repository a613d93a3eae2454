#include "module/ui/controls/Label.h"
#include "module/ui/controls/ProgressBar.h"
#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

constexpr int announced = 3;
constexpr int confirmed = 5;
constexpr int carrier = 6;

/// The provision reports, opened as the host does.
class ProvisionReports : public ContractTest {
protected:
    static constexpr const char* fibreWood = "R-2025-003 Faserholz Judenburg"; ///< contract 3, four helpers
    static constexpr const char* chips = "R-2025-004 Hackgut Wörgl";           ///< contract 4, two helpers

    ProvisionReports() { ownTables = {"WVO_BEREITMELDUNG_KW"}; }

    void open(const ScriptedDisplay::Script& script, std::int16_t modul = 1) {
        host.display.onWindow("F_Bereitstellung_WVO", script);
        host.openProvisionReports(modul);
    }
    /// Opens the reports of contract 3 for week 23 of 2025, works on them, and closes.
    void work(const ScriptedDisplay::Script& script) {
        open([&](User& user) {
            choose(user);
            host.statements.clear();
            script(user);
            user.close();
        });
    }
    /// The same, in edit mode; what is not saved is thrown away.
    void edit(const ScriptedDisplay::Script& script) {
        work([&](User& user) {
            user.click("btnBearbeiten");
            script(user);
            if (user.usable("btnAbbrechen")) user.click("btnAbbrechen");
        });
    }
    static void choose(User& user, const std::string& contract = fibreWood,
                       const std::string& week = "23/2025") {
        user.type("txtVertrag", contract);
        user.key(Key::tab);
        user.type("txtKalender", week);
        user.key(Key::tab);
    }
    /// Types into a cell.
    static void enter(User& user, int row, int column, const std::string& text) {
        user.select("MSFG", row, column);
        user.doubleClick("MSFG");
        user.type("txtEdit", text);
        user.key(Key::enter);
    }

    /// The helpers that are seen, a line each: number, mark, announced, confirmed, carrier.
    static std::string list(User& user) {
        std::string text;
        for (const ui::Grid::Row& row : user.grid("MSFG").rows())
            text += row[0] + "|" + row[2] + "|" + row[announced] + "|" + row[confirmed] + "|" + row[carrier] +
                    "\n";
        return text;
    }
    static std::string sums(User& user) {
        return user.caption("lblWH2") + " " + user.caption("lblWH3") + " / " + user.caption("lblZ2") + " " +
               user.caption("lblZ3");
    }
    /// The week's stored reports of contract 3, each in brackets.
    std::string stored(const std::string& columns = "ID_PERSONAL_WH,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT") {
        std::string all;
        const auto row =
            host.database.open("SELECT " + columns +
                               " FROM WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = 3 AND JAHR = 2025 "
                               "AND WOCHE = 23 ORDER BY ID");
        for (; !row->atEnd(); row->moveNext()) {
            all += all.empty() || all.back() == ']' ? "[" : "";
            for (std::size_t i = 0; i < row->fieldCount(); ++i)
                all += (i == 0 ? "" : " | ") + written(row->field(i));
            all += "]";
        }
        return all;
    }
    /// The statements sent since, but for reads.
    std::vector<std::string> writes() const {
        std::vector<std::string> all;
        for (const std::string& statement : host.statements)
            if (!statement.starts_with("SELECT")) all.push_back(statement);
        return all;
    }
    std::string lastError() const {
        return host.display.errors().empty() ? "" : host.display.errors().back();
    }
};

constexpr const char* asStored = "3001||4|3|Fuhrwerk Reisinger\n3002||2||\n3003|fehlt|||\n3005|fehlt|||\n";

TEST_F(ProvisionReports, ShowARowForEachHelperOfContractAndWeek) {
    open([&](User& user) {
        EXPECT_EQ(list(user), "") << "no contract";
        EXPECT_FALSE(user.usable("btnBearbeiten"));
        choose(user, "r-2025-003 FASERHOLZ judenburg", "");
        EXPECT_EQ(user.text("txtVertrag"), fibreWood);
        EXPECT_EQ(list(user), "3001||||\n3002||||\n3003||||\n3005||||\n") << "no week: nothing is missing";
        EXPECT_EQ(user.caption("lblGemeldet") + sums(user), "  /  ");
        EXPECT_FALSE(user.usable("btnBearbeiten") || user.usable("btnExcel"));

        user.type("txtKalender", "23/2025");
        user.key(Key::tab);
        EXPECT_EQ(user.text("txtKalenderTage"), "02.06.2025 - 08.06.2025");
        EXPECT_EQ(list(user), asStored);
        const ui::Grid& grid = user.grid("MSFG");
        EXPECT_EQ(grid.cell(0, 1) + "|" + grid.cell(0, 4), "Huber Josef|Zufahrt nur bei Trockenheit");
        EXPECT_EQ(grid.cell(0, 7) + "|" + grid.cell(0, 8) + "|" + grid.cell(0, 9), "400|350|136");
        EXPECT_EQ(user.caption("lblGemeldet"), "2 von 4 haben gemeldet");
        EXPECT_EQ(sums(user), "6 3 / 13 9") << "with reports of other weeks of other years";

        host.database.execute("UPDATE WVO_BEREITMELDUNG_KW SET WOCHE = 23 WHERE ID = 5");
        user.type("txtKalender", "24/2025");
        user.key(Key::tab);
        EXPECT_EQ(list(user), "3001|fehlt|||\n3002||3|3|\n3003|fehlt|||\n3005|fehlt|||\n");
        EXPECT_EQ(sums(user), "3 3 / 11 10") << "both of 2024, neither of 2025";
        user.close();
    });
    EXPECT_EQ(host.layouts, (std::vector<std::string>{"restore/MSFG/F_BEREITSTELLUNG_WVO",
                                                      "save/MSFG/F_BEREITSTELLUNG_WVO"}));
}

TEST_F(ProvisionReports, ContractsAreOfferedByKindAndFoundByName) {
    const auto tries = [&](User& user, const std::string& contract) {
        user.type("txtVertrag", contract);
        user.key(Key::tab);
        return user.focused();
    };
    open(
        [&](User& user) {
            user.focus("txtVertrag");
            user.ctrl();
            EXPECT_EQ(
                host.picks.back(),
                "SELECT VERTRAG_NAME AS LONG FROM VERTRAEGE WHERE ID_VERTRAG IN (SELECT "
                "WVO_VERTRAG.ID_VERTRAEGE FROM WVO_VERTRAG INNER JOIN WVO_VERTRAG_WALDHELFER ON "
                "WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = WVO_VERTRAG.ID AND ISNULL(BEREITSELLUNGS,0) <> 0 "
                ") AND ISNULL(ABGESCHLOSSEN,0)=0  AND ID_FAKTART = 7/Vertragsauswahl");
            choose(user);
            EXPECT_EQ(list(user), asStored) << "of whatever kind";
            EXPECT_EQ(tries(user, "R-2025-003"), "txtVertrag");
            EXPECT_EQ(list(user), "") << "not those of the former contract";
            EXPECT_EQ(tries(user, "D'Angelo"), "txtVertrag");
            EXPECT_EQ(lastError().find("Vertragsauswahl „D'Angelo“: "), 0U) << lastError();
            EXPECT_EQ(tries(user, "R-2024-017 Käferholz Wolfsberg"), "txtVertrag") << "closed";

            // The week goes along where the next contract has it.
            EXPECT_EQ(tries(user, fibreWood), "txtKalender");
            EXPECT_EQ(user.text("txtKalender"), "23/2025");
            EXPECT_EQ(list(user), asStored);
            EXPECT_EQ(tries(user, chips), "txtKalender");
            EXPECT_EQ(user.text("txtKalender") + user.text("txtKalenderTage") + user.tag("txtKalender"), "");
            EXPECT_EQ(list(user), "3001||||\n3003||||\n");
            user.type("txtKalender", "23/2025");
            user.key(Key::tab);
            EXPECT_EQ(user.focused(), "txtKalender") << "a week of another contract";
            user.type("0'");
            user.key(Key::tab);
            EXPECT_EQ(lastError().find("Kalender „0'“: "), 0U) << lastError();
            user.ctrl();
            EXPECT_EQ(
                host.picks.back(),
                "SELECT RIGHT('0'+CAST(WVO_VERTAG_KALENDER.WOCHE as nvarchar(2)),2)+'/'+CAST("
                "WVO_VERTAG_KALENDER.JAHR as nvarchar(4)) AS KW  FROM WVO_VERTAG_KALENDER INNER JOIN "
                "WVO_VERTRAG ON WVO_VERTRAG.ID = WVO_VERTAG_KALENDER.ID_WVO_VERTRAG WHERE "
                "WVO_VERTRAG.ID_VERTRAEGE = 4 ORDER BY WVO_VERTAG_KALENDER.JAHR,WVO_VERTAG_KALENDER.WOCHE"
                "/Kalender");
            user.close();
        },
        7);
}

TEST_F(ProvisionReports, AreFilteredByNameAndNumber) {
    struct Case {
        const char* rule;
        const char* name;
        const char* number;
        const char* found; ///< numbers of the helpers
        bool refused = false;
    };
    const Case cases[] = {
        {"a part of the short name, in any case", "ÖL", "", "3003 "},
        {"the beginning of the number", "", "30", "3001 3002 3003 3005 "},
        {"not its middle", "", "005", ""},
        {"both", "e", "3005", "3005 "},
        {"a wildcard is one", "%er", "", "3001 3002 3003 3005 "},
        {"a quote is refused at its box", "D'Angelo", "", "", true},
        {"nothing breaks out", "", "3' OR 1=1 --", "", true},
    };
    work([&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            const char* last = *c.number == 0 ? "txtWaldhelfer" : "txtWHNummer";
            user.type("txtWHNummer", "");
            user.type("txtWaldhelfer", *c.number == 0 ? "" : c.name);
            user.type(last, *c.number == 0 ? c.name : c.number);
            user.key(Key::enter);
            if (c.refused) {
                EXPECT_EQ(user.focused(), last);
                EXPECT_EQ(lastError().find("Filter WH N"), 0U) << lastError();
                user.type(last, "");
                continue;
            }
            EXPECT_EQ(user.focused(), "MSFG");
            std::string found;
            for (const ui::Grid::Row& row : user.grid("MSFG").rows())
                found += row[0] + " ";
            EXPECT_EQ(found, c.found);
        }
        user.type("txtWHNummer", "");
        user.type("txtWaldhelfer", "huber");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "txtWHNummer");
        EXPECT_EQ(sums(user), "4 3 / 11 9") << "of the rows shown, and all other reports";
        EXPECT_EQ(user.caption("lblGemeldet"), "1 von 1 haben gemeldet");
    });
}

TEST_F(ProvisionReports, AreWrittenRowByRow) {
    const std::string made =
        std::to_string(std::stoi(value("SELECT IDENT_CURRENT('WVO_BEREITMELDUNG_KW')")) + 1);
    edit([&](User& user) {
        enter(user, 0, carrier, "");
        enter(user, 1, announced, "");
        enter(user, 2, confirmed, "9999");
        enter(user, 2, carrier, "Kögl; 2''");
        EXPECT_EQ(list(user), "3001|*|4|3|\n3002|*|||\n3003|*||9999|Kögl; 2''\n"
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
                      "'Kögl; 2''',DATUM_CHANGE_ZENT = '09.03.2026 08:00:00' WHERE ID = " +
                          made +
                          " AND   ( "
                          "ISNULL(WVO_BEREITMELDUNG_KW.ZUEG_ZUGESAGT,0) <> 9999 OR "
                          "ISNULL(WVO_BEREITMELDUNG_KW.ZUEGE,0) <> NULL OR "
                          "ISNULL(WVO_BEREITMELDUNG_KW.FRAECHTER_TEXT,'') <> 'Kögl; 2''')"}));
        EXPECT_FALSE(user.usable("btnSpeichern")) << "in view mode again";
        EXPECT_EQ(user.caption("lblGemeldet"), "2 von 4 haben gemeldet");
        EXPECT_EQ(user.focused(), "MSFG");
    });
    EXPECT_EQ(stored("ID_PERSONAL_WH,ZUEGE,ZUEG_ZUGESAGT,FRAECHTER_TEXT,DATUM_GENERATE"),
              "[20 | 4 | 3 |  | 2025-05-29 07:05:00][22 | NULL | 9999 | Kögl; 2' | 2026-03-09 08:00:00]");
}

TEST_F(ProvisionReports, SayWhatBecomesOfARow) {
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

TEST_F(ProvisionReports, TakeWholeLoadsAndCarriersThatCanBeQuoted) {
    edit([&](User& user) {
        enter(user, 0, announced, "1x2,345678");
        EXPECT_EQ(user.grid("MSFG").cell(0, announced), "1234") << "digits, four of them";
        enter(user, 0, announced, "007");
        EXPECT_EQ(user.grid("MSFG").cell(0, announced), "7");
        user.select("MSFG", 1, announced);
        user.doubleClick("MSFG");
        user.replaceText("txtEdit", "12345");
        user.key(Key::enter);
        EXPECT_EQ(lastError(), "Züge „12345“: Bitte eine ganze Zahl von 0 bis 9999 eingeben.");
        EXPECT_EQ(user.focused(), "txtEdit");
        user.key(Key::escape);

        // With a quote the cell stays open, and nothing else can be done before.
        user.select("MSFG", 2, carrier);
        EXPECT_EQ(user.grid("MSFG").toolTip(), "Frächter");
        user.doubleClick("MSFG");
        EXPECT_EQ(user.control<ui::TextBox>("txtEdit").toolTip(), "Frächter");
        user.type("txtEdit", "D'Angelo");
        host.statements.clear();
        user.click("btnSpeichern");
        EXPECT_EQ(lastError().find("Bemerkung „D'Angelo“: "), 0U) << lastError();
        EXPECT_EQ(user.focused(), "txtEdit");
        EXPECT_EQ(host.statements, std::vector<std::string>{});
        user.key(Key::escape);
        user.select("MSFG", 0, 4);
        user.doubleClick("MSFG");
        EXPECT_EQ(user.focused(), "MSFG") << "the helper's remark is his";
    });
    EXPECT_EQ(stored(), "[20 | 4 | 3 | Fuhrwerk Reisinger][21 | 2 | NULL | NULL]");
}

TEST_F(ProvisionReports, ACarrierOfSomebodyElseThatCannotBeQuotedIsNotSent) {
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

TEST_F(ProvisionReports, AFailureInBetweenLeavesTheRestTyped) {
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

TEST_F(ProvisionReports, KeepWhatOthersHaveDoneMeanwhile) {
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

TEST_F(ProvisionReports, ASavingThatStopsTellsWhoseReportIsGone) {
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

TEST_F(ProvisionReports, WhatCameFromAColleagueIsToldThoughTheUserFirstWentBack) {
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

TEST_F(ProvisionReports, WhatBothHaveChangedIsAskedAbout) {
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

TEST_F(ProvisionReports, TheSwitchHidesFromTheEyeAlone) {
    work([&](User& user) {
        user.click("chkOhneMeldung");
        EXPECT_EQ(list(user), "3003|fehlt|||\n3005|fehlt|||\n");
        EXPECT_EQ(sums(user), "6 3 / 13 9");
        EXPECT_EQ(user.caption("lblGemeldet"), "2 von 4 haben gemeldet");
        user.click("btnExcel");
        EXPECT_NE(host.documents.exports.back().parameters.find("Huber Josef"), std::string::npos);
        user.click("btnBearbeiten");
        for (const char* locked : {"txtVertrag", "txtKalender", "txtWaldhelfer", "txtWHNummer",
                                   "chkOhneMeldung", "btnExcel", "btnSchliesen", "btnBearbeiten"})
            EXPECT_FALSE(user.usable(locked)) << locked;
        EXPECT_EQ(user.focused(), "MSFG");
        user.type("3");
        user.key(Key::enter);
        user.click("btnAllezusagen");
        EXPECT_EQ(list(user), "3003|*|3|3|\n3005|fehlt|||\n");
        user.click("btnSpeichern");
        EXPECT_EQ(list(user), "3005|fehlt|||\n") << "he has reported now";
        EXPECT_EQ(stored(), "[20 | 4 | 4 | Fuhrwerk Reisinger][21 | 2 | 2 | ][22 | 3 | 3 | ]")
            << "those that were hidden, too";
        user.click("chkOhneMeldung");
        user.click("btnBearbeiten");
        enter(user, 0, announced, "");
        user.click("btnAllezusagen");
        EXPECT_EQ(user.grid("MSFG").cell(0, confirmed), "") << "nothing announced, nothing confirmed";
        user.click("btnAbbrechen");
        EXPECT_EQ(user.grid("MSFG").cell(0, confirmed), "4");
    });
}

TEST_F(ProvisionReports, ClosingAsksWhenSomethingWasTyped) {
    struct Case {
        const char* rule;
        std::function<void(User&)> does;
        bool asks;
    };
    const Case cases[] = {
        {"nothing", [](User&) {}, false},
        {"the same again", [](User& user) { enter(user, 0, announced, "4"); }, true},
        {"a cell that is still open",
         [](User& user) {
             user.select("MSFG", 2, carrier);
             user.doubleClick("MSFG");
             user.type("txtEdit", "Kö");
         },
         true},
        {"thrown away",
         [](User& user) {
             enter(user, 0, announced, "5");
             user.click("btnAbbrechen");
         },
         false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        if (c.asks) host.display.onMessage("noch nicht gespeichert", Answer::no);
        if (c.asks) host.display.onMessage("noch nicht gespeichert", Answer::yes);
        open([&](User& user) {
            choose(user);
            user.click("btnBearbeiten");
            c.does(user);
            user.close();
            if (c.asks) user.close();
        });
    }
    EXPECT_EQ(stored(), "[20 | 4 | 3 | Fuhrwerk Reisinger][21 | 2 | NULL | NULL]");
}

TEST_F(ProvisionReports, GoToTheSpreadsheetAsTheyAreShown) {
    work([&](User& user) {
        host.display.onMessage("FHP Exporttabelle fehlerhaft.");
        user.click("btnFHPExport");
        EXPECT_TRUE(host.documents.exports.empty());
        user.click("btnExcel");
        user.click("btnExcelAlles");
        const std::string title = "Vertrag: R-2025-003 Faserholz Judenburg                Kalender: KW23 "
                                  "(02.06.2025 - 08.06.2025)";
        ASSERT_EQ(host.documents.exports.size(), 2U);
        EXPECT_EQ(host.documents.exports[0].title, title);
        EXPECT_EQ(host.documents.exports[0].parameters,
                  "FORMAT=0;;;0;;;;0;;0;\r\nROW=1\r\nTABLE="
                  "WH-Nr.\tWaldhelfer\tStraße\tPLZ\tOrt\tTelefon\tHandy\tZüge\tBemerkungWH\tZüge "
                  "zugesagt\tBemerkung\r\n"
                  "3001\tHuber Josef\tSonnleiten 4\t8600\tBruck an der Mur\t+43 3862 555 20\t+43 664 555 "
                  "0020\t4\tZufahrt nur bei Trockenheit\t3\tFuhrwerk Reisinger\r\n"
                  "3002\tMüller Käthe\tAm Bühel 17\t8680\tMürzzuschlag\t+43 3852 555 21\t+43 664 555 "
                  "0021\t2\t\t\t\r\n"
                  "3003\tÖllinger Franz\tSchattseite 2\t8792\tSankt Peter-Freienstein\t\t+43 664 555 "
                  "0022\t\t\t\t\r\n"
                  "3005\tSteiner Alois\tDorf 8\t8770\tSankt Michael\t\t\t\t\t\t");
        EXPECT_EQ(host.documents.exports[1].title, title);
        const std::string& all = host.documents.exports[1].parameters;
        EXPECT_NE(all.find("\tBemerkung\tWH Änderung\tZent. Änderung\tMenge angem.\tMenge best.\tMenge "
                           "geliefert\r\n"),
                  std::string::npos);
        EXPECT_NE(all.find("\tFuhrwerk Reisinger\t29.05.2025 07:05\t30.05.2025 09:20\t400\t350\t136\r\n"),
                  std::string::npos);
    });
    open([&](User& user) {
        choose(user, "R-2025-005 Schleifholz Amstetten", "01/2026");
        user.click("btnExcel");
        EXPECT_EQ(host.documents.exports.back().title,
                  "Vertrag: R-2025-005 Schleifholz Amstetten                Kalender: KW1 (29.12.2025 - "
                  "04.01.2026)")
            << "a week that begins in the year before";
        user.click("btnBearbeiten");
        enter(user, 0, announced, "2");
        user.click("btnSpeichern");
        user.close();
    });
    EXPECT_EQ(row("SELECT ID_VERTRAEGE,JAHR,WOCHE,ZUEGE FROM WVO_BEREITMELDUNG_KW WHERE ID_VERTRAEGE = 16"),
              "16 | 2026 | 1 | 2");
}

TEST_F(ProvisionReports, AServerThatIsGoneKeepsWhatIsThere) {
    work([&](User& user) {
        host.database.failOn("FROM WVO_VERTRAG_WALDHELFER");
        user.type("txtWaldhelfer", "huber");
        user.key(Key::tab);
        EXPECT_EQ(lastError(), "connection lost");
        EXPECT_EQ(list(user), asStored);
        user.click("btnBearbeiten");
        EXPECT_FALSE(user.usable("btnSpeichern")) << "the filter is not what is shown";
        host.database.failOn("");
        user.click("btnBearbeiten");
        enter(user, 0, announced, "5");
        host.database.failOn("WVO_BEREITMELDUNG_KW");
        user.click("btnSpeichern");
        user.click("btnAbbrechen");
        EXPECT_EQ(list(user), "3001|*|5|3|Fuhrwerk Reisinger\n") << "still typed";
        host.display.onMessage("noch nicht gespeichert", Answer::yes);
    });
}

} // namespace
} // namespace tellurix::tests
