#include "module/host/module_state.h"
#include "module/logistics/GuardedQuantities.h"
#include "tests/logistics/QuantityTest.h"

namespace tellurix::tests {
namespace {

using logistics::GuardedQuantities;
using ui::Answer;
using ui::Key;

constexpr std::int32_t huber = 20;    ///< number 3001: three contracts that are not closed, and a closed one
constexpr std::int32_t baeumler = 23; ///< number 3004: a contract without units and without a period
constexpr std::int32_t strasser = 25;

constexpr int announcedColumn = 2;
constexpr int confirmedColumn = 3;

/// The quantity reports, opened as the host does.
class QuantityReports : public QuantityTest {
protected:
    /// Chooses a helper and works on his reports, which are closed afterwards.
    void reports(std::int32_t helper, const ScriptedDisplay::Script& script) {
        host.display.onWindow("F_VertragMengenmeldung_WVO", [&, helper](User& user) {
            if (helper != 0) {
                host.pickedPerson = helper;
                user.focus("txtWaldhelfer");
                user.ctrl();
            }
            host.statements.clear();
            script(user);
            if (host.display.top() == nullptr) return;
            if (user.usable("btnAbbrechen")) user.click("btnAbbrechen");
            user.click("btnSchliesen");
        });
        host.openQuantityReports();
    }
    void edit(std::int32_t helper, const ScriptedDisplay::Script& script) {
        reports(helper, [&](User& user) {
            user.click("btnBearbeiten");
            script(user);
        });
    }
};

TEST_F(QuantityReports, ShowTheContractsOfTheChosenHelper) {
    reports(huber, [&](User& user) {
        EXPECT_EQ(host.picks, std::vector<std::string>{"2PVA2/2"});
        EXPECT_EQ(user.window().title(), "Vertrag Mengenmeldung");
        EXPECT_EQ(user.text("txtWaldhelfer"), "3001");
        EXPECT_EQ(user.text("txtWaldhelferName"), "Huber Josef");
        EXPECT_EQ(shown(user),
                  "|R-2025-003 Faserholz Judenburg / lutro-t|400|350|211|52|05.05.2025 - 15.06.2025|\n"
                  "|R-2025-004 Hackgut Wörgl / SRm|81|0|40||01.12.2024 - 31.01.2025|\n"
                  "|R-2025-005 Schleifholz Amstetten / Rm|0||||01.06.2025 - 31.12.2026|\n")
            << "not the closed contract";
        EXPECT_EQ(user.caption("lblCol2"), "481") << "the sum of what is not rounded";
        EXPECT_EQ(user.caption("lblCol3"), "350");

        // The number can be typed as well.
        user.type("txtWaldhelfer", "3004");
        user.key(Key::enter);
        EXPECT_EQ(shown(user), "|R-2026-002 Vorvertrag Nadelholz / Fm|120|||||\n") << "no unit, no period";
        EXPECT_EQ(user.text("txtWaldhelferName"), "Bäumler Agnes");
        user.type("txtWaldhelfer", "9999");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "txtWaldhelfer") << "nobody";
        EXPECT_EQ(shown(user), "");
        EXPECT_FALSE(user.usable("btnBearbeiten"));
        user.type("txtWaldhelfer", "3001");
        user.key(Key::tab);
        EXPECT_EQ(user.grid("MSFG").rows().size(), 3U);
        user.replaceText("txtWaldhelfer", "");
        user.key(Key::tab);
        EXPECT_EQ(shown(user), "") << "no helper, no contracts";
        EXPECT_EQ(user.caption("lblCol2"), "0");
    });
    const std::vector<std::string> layouts{"restore/MSFG/F_VERTRAGMENGENMELDUNG_WVO",
                                           "save/MSFG/F_VERTRAGMENGENMELDUNG_WVO"};
    EXPECT_EQ(host.layouts, layouts);
}

TEST_F(QuantityReports, ReadTheGridWithTheGivenStatement) {
    reports(0, [&](User& user) {
        user.type("txtWaldhelfer", "3001");
        user.key(Key::tab);
        const std::string& query = host.statements.back();
        for (
            const char* piece :
            {" select WVO_VERTRAG_WALDHELFER.ID, VERTRAEGE.VERTRAG_NAME + ' / ' + isnull(Einheit.EINHEIT,''), \r\n"
             " sum(WVO_VERTRAG_WALDHELFER.MENGE_ANG) as MENGE_ANG, \r\n",
             " and isnull(VERTRAEGE.ABGESCHLOSSEN,0) = 0 \r\n inner join WVO_VERTRAG_WALDHELFER on ",
             " and WVO_VERTRAG_WALDHELFER.ID_PERSONAL = 20 LEFT JOIN (\r\nselect  WVO_UBERNAHMESCHEIN.ID_VERTRAEGE, ",
             "\r\n) as UG on UG.id_personal_wh = WVO_VERTRAG_WALDHELFER.ID_PERSONAL AND UG.ID_VERTRAEGE = "
             "VERTRAEGE.ID_VERTRAG\r\n    LEFT JOIN (SELECT SUM(WVO2_SORTIMENTDATEN.PLANMENGE) AS MENGEWB, ",
             "WVO2_AUFTRAG_NOTIZ.ID_PERSONAL_WH = 20    group by WVO2_SORTIMENTDATEN.ID_WVO_VERTRAG) C ON ",
             "    where lr.a2_kunde = 20 group by lr.R_vertrag) as Geliefert on "})
            EXPECT_NE(query.find(piece), std::string::npos) << piece << "\nin\n" << query;
        user.replaceText("txtWaldhelfer", "");
        user.key(Key::tab);
        EXPECT_NE(host.statements.back().find("WVO_VERTRAG_WALDHELFER.ID_PERSONAL  IS NULL  LEFT JOIN ("),
                  std::string::npos)
            << "nobody";
    });
}

TEST(GuardedQuantityStatement, ComparesWithASentinelAndDiffersInABlank) {
    const base::DateTime now = testClock().now();
    const base::Value none{};
    const base::Value some{base::Decimal{125, 1}};
    const base::Value other{base::Decimal{1250}};
    struct Case {
        const char* condition;
        const base::Value& announced;
        const base::Value& confirmed;
        const char* statement;
    };
    const Case cases[] = {
        {GuardedQuantities::ofContract, some, other,
         "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = 12.5,MENGE_BES = 1250, DATUM_CHANGE_ZENT = "
         "'09.03.2026 08:00:00' WHERE (   ISNULL(MENGE_BES,99999999) <> 1250 OR  ISNULL(MENGE_ANG,99999999) "
         "<> 12.5 ) AND WVO_VERTRAG_WALDHELFER.ID = 7"},
        {GuardedQuantities::ofContract, none, other,
         "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = NULL,MENGE_BES = 1250, DATUM_CHANGE_ZENT = "
         "'09.03.2026 08:00:00' WHERE (   ISNULL(MENGE_BES,99999999) <> 1250 OR  MENGE_ANG is not null  ) "
         "AND WVO_VERTRAG_WALDHELFER.ID = 7"},
        {GuardedQuantities::ofHelper, some, none,
         "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = 12.5,MENGE_BES = NULL, DATUM_CHANGE_ZENT = "
         "'09.03.2026 08:00:00' WHERE (  MENGE_BES is not null  OR  ISNULL(MENGE_ANG,99999999) <> 12.5 ) AND "
         "WVO_VERTRAG_WALDHELFER.ID = 7"},
        {GuardedQuantities::ofHelper, none, none,
         "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = NULL,MENGE_BES = NULL, DATUM_CHANGE_ZENT = "
         "'09.03.2026 08:00:00' WHERE (  MENGE_BES is not null  OR  MENGE_ANG is not null  ) AND "
         "WVO_VERTRAG_WALDHELFER.ID = 7"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(GuardedQuantities::statement(c.condition, 7, c.announced, c.confirmed, now), c.statement);
}

TEST_F(QuantityReports, TakeWholeQuantitiesOnly) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* shown;  ///< null: refused
        const char* stored; ///< the announced quantity
    };
    const std::string before = "400.00 | 350.00 | 2025-05-02 10:30:00";
    const Case cases[] = {
        {"thousands", "1.250", "1.250", "1250.00"},
        {"without the point", "1250", "1.250", "1250.00"},
        {"millions", "1.234.567", "1.234.567", "1234567.00"},
        {"zero is not nothing", "0", "0", "0.00"},
        {"nothing is NULL", "", "", "NULL"},
        {"the largest", "99.999.998", "99.999.998", "99999998.00"},
        {"the sentinel", "99.999.999", nullptr, nullptr},
        {"a point that parts no thousands", "12.5", nullptr, nullptr},
        {"decimals", "12,5", nullptr, nullptr},
        {"a sign", "-5", nullptr, nullptr},
        {"no number", "viel", nullptr, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        edit(huber, [&](User& user) {
            const auto errors = host.display.errors().size();
            typeCell(user, 0, announcedColumn, c.typed);
            if (c.shown == nullptr) {
                ASSERT_EQ(host.display.errors().size(), errors + 1);
                EXPECT_EQ(host.display.errors().back().find(std::string{"Menge angem. „"} + c.typed + "“: "),
                          0U)
                    << host.display.errors().back();
                EXPECT_EQ(user.focused(), "txtEdit");
                EXPECT_EQ(user.text("txtEdit"), c.typed) << "still to be corrected";
                user.click("btnAbbrechen"); // nobody has to correct it in order to leave
                EXPECT_EQ(cell(user, 0, announcedColumn), "400");
                return;
            }
            EXPECT_EQ(cell(user, 0, announcedColumn), c.shown);
            EXPECT_EQ(cell(user, 0, 0), "*");
            user.click("btnSpeichern");
            EXPECT_EQ(cell(user, 0, announcedColumn), c.shown);
            EXPECT_EQ(cell(user, 0, 0), "");
        });
        EXPECT_EQ(stored(1),
                  c.stored == nullptr ? before : std::string{c.stored} + " | 350.00 | 2026-03-09 08:00:00");
        colleague("MENGE_ANG = 400, MENGE_BES = 350, DATUM_CHANGE_ZENT = '02.05.2025 10:30:00'", 1);
    }
    // Keys and the clipboard.
    edit(huber, [&](User& user) {
        user.select("MSFG", 0, confirmedColumn);
        user.type("1x.2,5-0");
        EXPECT_EQ(user.text("txtEdit"), "1.250");
        user.paste("txtEdit", "12,5");
        EXPECT_EQ(user.text("txtEdit"), "1.250") << "not 125";
        user.replaceText("txtEdit", "");
        user.paste("txtEdit", "1.300,00");
        user.key(Key::down);
        EXPECT_EQ(cell(user, 0, confirmedColumn), "1.300");
        EXPECT_EQ(user.grid("MSFG").currentRow(), 1);
        user.select("MSFG", 0, 1);
        user.doubleClick("MSFG");
        EXPECT_EQ(user.focused(), "MSFG") << "a contract's name is no quantity";
    });
}

TEST_F(QuantityReports, WhatNobodyTypedKeepsItsDecimalsAndItsStamp) {
    const std::string halves = stored(6);
    edit(huber, [&](User& user) {
        user.select("MSFG", 1, announcedColumn);
        user.doubleClick("MSFG");
        EXPECT_EQ(user.text("txtEdit"), "81");
        user.key(Key::enter); // looked at
        typeCell(user, 0, confirmedColumn, "351");
        user.click("btnSpeichern");
        ASSERT_EQ(sent("UPDATE").size(), 3U) << "every row is sent, and guards itself";
        EXPECT_EQ(
            sent("UPDATE")[1].find("UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = 80.50,MENGE_BES = 0.00, "),
            0U);
        EXPECT_EQ(stored(6), halves);

        // Typed is typed, even where it looks the same.
        user.click("btnBearbeiten");
        typeCell(user, 1, announcedColumn, "81");
        user.click("btnSpeichern");
        EXPECT_EQ(stored(6), "81.00 | 0.00 | 2026-03-09 08:00:00");
    });
}

TEST_F(QuantityReports, ConfirmingAllCopiesTheQuantitiesWithTheirDecimals) {
    edit(huber, [&](User& user) {
        user.click("btnAllezusagen");
        EXPECT_EQ(cell(user, 0, confirmedColumn) + "|" + cell(user, 1, confirmedColumn) + "|" +
                      cell(user, 2, confirmedColumn),
                  "400|81|0");
        EXPECT_EQ(user.caption("lblCol3"), "481");
        EXPECT_EQ(sent("UPDATE").size(), 0U) << "written on saving";
        user.click("btnAbbrechen");
        EXPECT_EQ(user.caption("lblCol3"), "350");

        user.click("btnBearbeiten");
        typeCell(user, 0, announcedColumn, "");
        user.click("btnAllezusagen");
        user.click("btnSpeichern");
    });
    EXPECT_EQ(stored(1), "NULL | NULL | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(6), "80.50 | 80.50 | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(9), "0.00 | 0.00 | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(7), "500.00 | 500.00 | 2024-06-21 09:00:00") << "the closed contract";
}

TEST_F(QuantityReports, AFailureInBetweenSaysHowFarItCame) {
    edit(huber, [&](User& user) {
        for (int contract = 0; contract < 3; ++contract)
            typeCell(user, contract, confirmedColumn, "77");
        host.database.failOn("WVO_VERTRAG_WALDHELFER.ID = 6");
        user.click("btnSpeichern");
        ASSERT_EQ(host.display.errors().size(), 2U);
        EXPECT_EQ(host.display.errors()[0], "connection lost");
        EXPECT_EQ(
            host.display.errors()[1].find(
                "Das Speichern brach bei „R-2025-004 Hackgut Wörgl / SRm“ ab. Geschrieben sind 1 von 3 "),
            0U)
            << host.display.errors()[1];
        EXPECT_EQ(cell(user, 0, 0) + "|" + cell(user, 1, 0) + "|" + cell(user, 2, 0), "|*|*");
        EXPECT_EQ(cell(user, 2, confirmedColumn), "77");
        EXPECT_FALSE(user.usable("ProgressBar1"));
        EXPECT_TRUE(user.usable("btnSpeichern"));

        // The one that is written is not written again.
        colleague("DATUM_CHANGE_ZENT = '01.01.2026 00:00:00'", 1);
        host.database.failOn("");
        user.click("btnSpeichern");
        EXPECT_FALSE(user.usable("btnSpeichern"));
    });
    EXPECT_EQ(stored(1), "400.00 | 77.00 | 2026-01-01");
    EXPECT_EQ(stored(6), "80.50 | 77.00 | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(9), "0.00 | 77.00 | 2026-03-09 08:00:00");
}

TEST_F(QuantityReports, WhatAColleagueHasEnteredMeanwhile) {
    struct Case {
        const char* rule;
        const char* change; ///< of the first contract; null: it is deleted
        const char* byNow;  ///< in a question about it; null: nothing is asked
        const char* answer;
        const char* stored;
        const char* named = ""; ///< in the status line
    };
    const Case cases[] = {
        {"stays where nothing was typed", "MENGE_ANG = 444", nullptr, "",
         "444.00 | 77.00 | 2026-03-09 08:00:00",
         "übernommen: R-2025-003 Faserholz Judenburg / lutro-t, Menge angem. 400 → 444."},
        {"is asked about where something was", "MENGE_BES = 444.5", "444,5", "btnZuruck",
         "400.00 | 444.50 | 2025-05-02 10:30:00"},
        {"is overwritten on demand", "MENGE_BES = 444", "444", "btnMeines",
         "400.00 | 77.00 | 2026-03-09 08:00:00"},
        {"is taken over on demand", "MENGE_BES = 444", "444", "btnDeren",
         "400.00 | 444.00 | 2025-05-02 10:30:00"},
        {"a NULL counts", "MENGE_BES = NULL", "(leer)", "btnZuruck", "400.00 | NULL | 2025-05-02 10:30:00"},
        {"the same is no conflict", "MENGE_BES = 77", nullptr, "", "400.00 | 77.00 | 2025-05-02 10:30:00"},
        {"a deleted row is told", nullptr, nullptr, "", "no row"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        edit(huber, [&](User& user) {
            typeCell(user, 0, confirmedColumn, "77");
            typeCell(user, 1, announcedColumn, "90");
            if (c.change == nullptr) {
                host.database.execute("DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID = 1");
                host.display.onMessage("inzwischen gelöscht: R-2025-003 Faserholz Judenburg / lutro-t.");
            } else {
                colleague(c.change, 1);
            }
            if (c.byNow != nullptr)
                onConflict(std::string{"R-2025-003 Faserholz Judenburg / lutro-t, Menge best. – Sie: 77 – "
                                       "inzwischen: "} +
                               c.byNow,
                           c.answer);
            host.statements.clear();
            user.click("btnSpeichern");
            EXPECT_NE(user.status().find(c.named), std::string::npos) << user.status();
            const bool refused = c.answer == std::string{"btnZuruck"};
            EXPECT_EQ(sent("UPDATE").size(), refused ? 0U : c.change == nullptr ? 2U : 3U);
            EXPECT_EQ(user.usable("btnSpeichern"), refused);
        });
        EXPECT_EQ(stored(1), c.stored);
        EXPECT_EQ(stored(6).substr(0, 5), c.answer == std::string{"btnZuruck"} ? "80.50" : "90.00");
        colleague("MENGE_ANG = 400, MENGE_BES = 350, DATUM_CHANGE_ZENT = '02.05.2025 10:30:00'", 1);
        colleague("MENGE_ANG = 80.5, MENGE_BES = 0, DATUM_CHANGE_ZENT = NULL", 6);
    }
}

TEST_F(QuantityReports, WhatCanBeUsedWhen) {
    struct Case {
        const char* control;
        bool withoutContracts;
        bool viewing;
        bool editing;
    };
    const Case cases[] = {
        {"txtWaldhelfer", true, true, false},  {"MSFG", true, true, true},
        {"btnBearbeiten", false, true, false}, {"btnSpeichern", false, false, true},
        {"btnAbbrechen", false, false, true},  {"btnAllezusagen", false, false, true},
        {"btnExcel", true, true, false},       {"btnSchliesen", true, true, false},
    };
    const auto expect = [&](User& user, bool Case::*mode) {
        for (const Case& c : cases)
            EXPECT_EQ(user.usable(c.control), c.*mode) << c.control;
    };
    reports(0, [&](User& user) { expect(user, &Case::withoutContracts); });
    reports(strasser, [&](User& user) {
        expect(user, &Case::viewing);
        user.select("MSFG", 0, announcedColumn);
        user.doubleClick("MSFG");
        user.type("5");
        EXPECT_EQ(user.focused(), "MSFG") << "nothing is edited while looking";
        user.select("MSFG", 0, 1);
        user.click("btnBearbeiten");
        expect(user, &Case::editing);
        user.type("5");
        EXPECT_EQ(user.text("txtEdit"), "5") << "the announced quantity can be typed over at once";
        user.key(Key::escape);
        EXPECT_EQ(cell(user, 0, announcedColumn), "60");
        user.click("btnSpeichern");
        expect(user, &Case::viewing);
    });
    EXPECT_EQ(stored(10), "60.00 | 60.00 | 2025-05-23 14:00:00") << "nothing was changed";
}

TEST_F(QuantityReports, ClosingAsksAndTheNextCallFindsTheHelper) {
    reports(huber, [&](User& user) {
        user.click("btnBearbeiten");
        user.select("MSFG", 0, confirmedColumn);
        user.type("77");
        host.display.onMessage("noch nicht gespeichert", Answer::no);
        user.close(); // the cell is still open
        user.key(Key::enter);
        EXPECT_EQ(cell(user, 0, confirmedColumn), "77");
        host.display.onMessage("Verwerfen?", Answer::no);
        user.key(Key::escape);
        EXPECT_EQ(cell(user, 0, confirmedColumn), "77") << "Esc may be meant for something else";
        host.display.onMessage("noch nicht gespeichert", Answer::yes);
        user.select("MSFG", 1, announcedColumn);
        user.doubleClick("MSFG"); // a cell is left open
        user.close();
    });
    EXPECT_EQ(stored(1), "400.00 | 350.00 | 2025-05-02 10:30:00");
    colleague("MENGE_ANG = 410", 1);
    const auto findsHuber = [&](User& user) {
        EXPECT_EQ(user.text("txtWaldhelfer"), "3001");
        EXPECT_EQ(user.text("txtWaldhelferName"), "Huber Josef");
        EXPECT_EQ(cell(user, 0, announcedColumn), "410") << "as the database has it now";
        EXPECT_TRUE(user.usable("btnBearbeiten"));
        EXPECT_EQ(user.grid("MSFG").cellEditor(), nullptr);
    };
    reports(0, findsHuber);
    host::restoreModuleState(host::releaseModuleState());
    reports(0, findsHuber); // after the module's last object has gone
}

TEST_F(QuantityReports, AHelperWhoseContractsCannotBeReadHasNone) {
    reports(huber, [&](User& user) {
        host.database.failOn("sum(c.MENGEWB)");
        user.type("txtWaldhelfer", "3004");
        user.key(Key::tab);
        EXPECT_EQ(host.display.errors().back(), "connection lost");
        EXPECT_EQ(shown(user), "") << "not those of the helper before";
        host.database.failOn("");
        user.type("txtWaldhelfer", "3004");
        user.key(Key::tab);
        EXPECT_EQ(user.grid("MSFG").rows().size(), 1U) << "the same number once more";

        host.pickedPerson = baeumler;
        host.database.failOn("sum(c.MENGEWB)");
        user.focus("txtWaldhelfer");
        user.ctrl();
        EXPECT_EQ(shown(user), "");
        host.database.failOn("");
        user.key(Key::tab);
        EXPECT_EQ(user.grid("MSFG").rows().size(), 1U) << "the same helper, found by the search";
    });
}

TEST_F(QuantityReports, ThreeListingsForTheSpreadsheet) {
    host.database.execute("UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = 1250.5 WHERE ID = 9");
    host.database.execute("DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID > 10");
    reports(baeumler, [&](User& user) {
        user.click("btnExcel");
        const auto& exports = host.documents.exports;
        ASSERT_EQ(exports.size(), 3U);
        EXPECT_EQ(user.status(), "3 Tabellen erstellt");
        EXPECT_EQ(exports[0].title, "Waldhelfer und Verträge");
        EXPECT_EQ(exports[0].parameters,
                  "FORMAT=0;;;0;\r\nROW=1\r\nTABLE="
                  "WH-Nr.\tWaldhelfer\tVertrag / Mengeneinheit\tMenge angem.\r\n"
                  "3001\tHuber Josef\tR-2025-005 Schleifholz Amstetten (Rm)\t1.251\r\n"
                  "3004\tBäumler Agnes\tR-2026-002 Vorvertrag Nadelholz (Fm)\t120\r\n"
                  "3006\tStraßer Günther\tR-2025-005 Schleifholz Amstetten (Rm)\t60\r\n"
                  "\tSUMME:\t\t1.431");
        EXPECT_EQ(exports[1].title, "Verträge");
        EXPECT_EQ(exports[1].parameters, "FORMAT=;0;\r\nROW=1\r\nTABLE="
                                         "Vertrag / Mengeneinheit\tMenge angem.\r\n"
                                         "R-2025-005 Schleifholz Amstetten (Rm)\t1.311\r\n"
                                         "R-2026-002 Vorvertrag Nadelholz (Fm)\t120\r\n"
                                         "SUMME:\t1.431");
        EXPECT_EQ(exports[2].title, "Waldhelfer");
        EXPECT_EQ(exports[2].parameters, "FORMAT=0;;0;\r\nROW=1\r\nTABLE="
                                         "WH-Nr.\tWaldhelfer\tMenge angem.\r\n"
                                         "3001\tHuber Josef\t1.251\r\n"
                                         "3004\tBäumler Agnes\t120\r\n"
                                         "3006\tStraßer Günther\t60\r\n"
                                         "\tSUMME:\t1.431");
    });
}

} // namespace
} // namespace tellurix::tests
