#include "tests/logistics/ProvisionTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

struct ProvisionReports : ProvisionTest {};

TEST_F(ProvisionReports, ShowARowForEachHelperOfContractAndWeek) {
    open([&](User& user) {
        EXPECT_EQ(list(user), "") << "no contract";
        EXPECT_EQ(user.window().title(), "Bereitstellungsmeldung");
        EXPECT_FALSE(user.usable("btnBearbeiten"));
        std::string tips = user.grid("MSFG").toolTip();
        for (const ui::Grid::Column& column : user.grid("MSFG").columns())
            tips += column.toolTip.empty() ? "" : column.caption + ": " + column.toolTip;
        EXPECT_EQ(tips, "Bemerkung: Frächter") << "of that column alone, whichever is the current one";
        choose(user, "r-2025-003 FASERHOLZ judenburg", "");
        EXPECT_EQ(user.text("txtVertrag"), fibreWood);
        EXPECT_EQ(user.window().title(), std::string{"Bereitstellungsmeldung – "} + fibreWood);
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
        EXPECT_EQ(user.caption("lblFehlen"), "Es fehlen: Öllinger Franz, Steiner Alois");
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
            EXPECT_EQ(user.window().title(), "Bereitstellungsmeldung");
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
        user.type("txtWaldhelfer", "e");
        user.type("txtWHNummer", "99");
        user.key(Key::enter);
        EXPECT_EQ(user.grid("MSFG").emptyText(), "Keine Treffer für „e, 99“ – bitte anders suchen");
        user.type("txtWHNummer", "");
        user.type("txtWaldhelfer", "huber");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "txtWHNummer");
        EXPECT_EQ(sums(user), "4 3 / 11 9") << "of the rows shown, and all other reports";
        EXPECT_EQ(user.caption("lblGemeldet"), "1 von 1 haben gemeldet");
    });
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
        user.doubleClick("MSFG");
        EXPECT_EQ(user.control<ui::TextBox>("txtEdit").toolTip(), "Frächter");
        for (const std::string typed : {"D'Angelo", "D''Angelo"}) {
            user.type("txtEdit", typed);
            host.statements.clear();
            user.click("btnSpeichern");
            EXPECT_EQ(lastError().find("Bemerkung „" + typed + "“: "), 0U) << lastError();
            EXPECT_EQ(user.focused(), "txtEdit");
            EXPECT_EQ(host.statements, std::vector<std::string>{});
        }
        user.key(Key::escape);
        user.select("MSFG", 0, 4);
        user.doubleClick("MSFG");
        EXPECT_EQ(user.focused(), "MSFG") << "the helper's remark is his";
    });
    EXPECT_EQ(stored(), "[20 | 4 | 3 | Fuhrwerk Reisinger][21 | 2 | NULL | NULL]");
}

TEST_F(ProvisionReports, TheLoadsOfAllWeeksAreAListAndBarsThatLeadToAWeek) {
    work([&](User& user) {
        host.display.onWindow("F_ZuegeJeWoche", [&](User& weeks) {
            EXPECT_EQ(weeks.window().title(), std::string{"Züge je Woche – "} + fibreWood);
            EXPECT_EQ(weeks.grid("grdWochen").rows().size(), 6U);
            EXPECT_EQ(weeks.grid("grdWochen").rows()[4], (ui::Grid::Row{"2025/23", "6", "3"}));
            EXPECT_EQ(weeks.bars("chtZuege"), "19:– / –! 20:– / –! 21:– / –! 22:5 / 5 [23:6 / 3] 24:3 / 3");
            weeks.select("chtZuege", 3);
            EXPECT_EQ(weeks.focused(), "grdWochen");
            weeks.clickHeading("grdWochen", 0);
            weeks.clickHeading("grdWochen", 0);
            EXPECT_EQ(weeks.grid("grdWochen").cell(0, 0), "2025/24") << "the last week first";
            weeks.select("chtZuege", 3);
            EXPECT_EQ(weeks.bars("chtZuege"), "19:– / –! 20:– / –! 21:– / –! [22:5 / 5] 23:6 / 3 24:3 / 3");
            weeks.click("btnWaehlen");
        });
        user.click("btnZuegeJeWoche");
        EXPECT_EQ(host.layouts.back(), "save/grdWochen/F_ZuegeJeWoche.grdWochen");
        EXPECT_EQ(user.text("txtKalender"), "22/2025");
        EXPECT_EQ(user.text("txtKalenderTage"), "26.05.2025 - 01.06.2025");
        EXPECT_EQ(user.focused(), "MSFG");
        host.display.onWindow("F_ZuegeJeWoche", [](User& weeks) { weeks.key(Key::escape); });
        user.click("btnZuegeJeWoche");
        EXPECT_EQ(user.text("txtKalender"), "22/2025") << "nothing was chosen";
        user.click("btnBearbeiten");
        EXPECT_FALSE(user.usable("btnZuegeJeWoche"));
        user.click("btnAbbrechen");
        user.type("txtVertrag", "");
        user.key(Key::tab);
        EXPECT_FALSE(user.usable("btnZuegeJeWoche")) << "no contract is chosen";
    });
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
        EXPECT_EQ(user.status(), "Änderungen verworfen");
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
