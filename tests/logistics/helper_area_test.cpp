#include "tests/logistics/QuantityTest.h"

#include <algorithm>
#include <set>

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

constexpr int helperPage = 2;
constexpr int announcedCell = 4;
constexpr int confirmedCell = 6;

/// The forest helpers of a contract, on their page of the logistics form.
class ForestHelpers : public QuantityTest {
protected:
    static constexpr std::int32_t chips = 4; ///< two helpers, no weeks
    static constexpr std::int32_t withoutHelpers = 1;

    void helpers(std::int32_t contract, const ScriptedDisplay::Script& script) {
        open(contract, [&](User& user) {
            user.select("SSTab1", helperPage);
            host.statements.clear();
            script(user);
            if (host.display.top()->name() != "F_Vertrag_WVO") return;
            if (user.usable("btnAbbrechen2")) user.click("btnAbbrechen2");
            user.click("btnClose");
        });
    }
    void edit(std::int32_t contract, const ScriptedDisplay::Script& script) {
        helpers(contract, [&](User& user) {
            user.click("btnBearbeiten2");
            script(user);
        });
    }
    /// The numbers of the helpers that are shown.
    static std::string numbers(User& user) {
        std::string all;
        for (const ui::Grid::Row& row : user.grid("MSFG").rows())
            all += row[1] + " ";
        return all;
    }
    /// The persons of a contract's helpers.
    std::string persons(int record) {
        std::string all;
        for (auto row =
                 host.database
                     .execute("SELECT ID_PERSONAL FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = " +
                              std::to_string(record) + " ORDER BY ID_PERSONAL,ID")
                     .rows;
             !row->atEnd(); row->moveNext())
            all += row->text("ID_PERSONAL") + " ";
        return all;
    }
};

TEST_F(ForestHelpers, AreListedWithTheirShareOfThePlan) {
    helpers(fibreWood, [&](User& user) {
        EXPECT_EQ(shown(user), "|3001|Huber Josef|375|400|211|350|01.05.2025 08:15|02.05.2025 10:30|\n"
                               "|3002|Müller Käthe|375|250|75||03.05.2025 17:45||\n"
                               "|3003|Öllinger Franz|375||||||\n"
                               "|3005|Steiner Alois|375|100||100|01.05.2025 07:00|02.05.2025 10:30|\n");
        EXPECT_EQ(user.caption("lbldruchschnMenge") + "|" + user.caption("lblangemMenge") + "|" +
                      user.caption("lblangemWBMenge") + "|" + user.caption("lblbestMenge") + "|" +
                      user.caption("lblEinheit"),
                  "375|750|286|450|atro-t");
    });
    for (const char* layout : {"restore/MSFG/F_VERTRAG_WVO_WH", "save/MSFG/F_VERTRAG_WVO_WH"})
        EXPECT_EQ(std::count(host.layouts.begin(), host.layouts.end(), layout), 1) << layout;

    helpers(chips, [&](User& user) {
        EXPECT_EQ(cell(user, 0, 3) + user.caption("lbldruchschnMenge"), "") << "no weeks, nothing planned";
        EXPECT_EQ(numbers(user), "3001 3003 ");
    });
    helpers(withoutHelpers, [&](User& user) {
        EXPECT_EQ(shown(user), "") << "the row that the outer join yields is no helper";
        EXPECT_EQ(user.caption("lblangemMenge"), "0");
        EXPECT_FALSE(user.usable("btnBearbeiten2") || user.usable("btnLoschen2"));
        host.display.onMessage("Achtung!");
    });
}

TEST_F(ForestHelpers, TheFilterActsOnEnterAndOnLeaving) {
    struct Case {
        const char* typed;
        Key leaves;
        const char* found;
    };
    const Case cases[] = {
        {"öll", Key::enter, "3003 "}, {"300", Key::tab, "3001 3002 3003 3005 "},
        {"nobody", Key::tab, ""},     {"H_ber", Key::enter, "3001 "},
        {"O''Neill", Key::enter, ""}, {"", Key::enter, "3001 3002 3003 3005 "},
    };
    helpers(fibreWood, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.typed);
            user.focus("txtFilter");
            user.replaceText("txtFilter", c.typed);
            user.key(c.leaves);
            EXPECT_EQ(numbers(user), c.found);
            if (*c.found != '\0') {
                EXPECT_EQ(cell(user, 0, 3), "375") << "the plan is divided by all helpers";
            }
            EXPECT_EQ(user.focused(), "MSFG");
        }
        user.type("txtFilter", "D'Angelo");
        const auto before = host.statements.size();
        user.key(Key::enter);
        EXPECT_EQ(host.display.errors().back().find("Ansicht nach Nummer oder Name Filtern ... „D'Angelo“: "),
                  0U)
            << host.display.errors().back();
        EXPECT_EQ(user.focused(), "txtFilter");
        EXPECT_EQ(host.statements.size(), before);

        user.replaceText("txtFilter", "Müll");
        host.database.failOn("KOPF");
        user.key(Key::tab);
        EXPECT_EQ(numbers(user), "3001 3002 3003 3005 ");
        host.database.failOn("");
        user.key(Key::tab);
        EXPECT_EQ(numbers(user), "3002 ") << "the same text once more";
        EXPECT_EQ(user.caption("lblangemMenge"), "250") << "of those that are shown";
        const std::string& query = host.statements.back();
        EXPECT_NE(query.find("SELECT WVO_VERTRAG_WALDHELFER.ID,\r\n--WVO_VERTRAG_WALDHELFER.ID_PERSONAL,\r\n"
                             "PERSONAL.NUMMER AS PERSONALNUMMER,\r\n"),
                  std::string::npos);
        EXPECT_NE(
            query.find(" AS ID) KOPF\r\n LEFT JOIN WVO_VERTRAG_WALDHELFER ON "
                       "WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = KOPF.ID AND "
                       "WVO_VERTRAG_WALDHELFER.ID_PERSONAL IN (SELECT ID_PERSONAL FROM PERSONAL WHERE NUMMER "
                       "LIKE '%Müll%' OR KURZBEZEICHNUNG LIKE '%Müll%')\r\n LEFT JOIN PERSONAL ON "),
            std::string::npos)
            << query;
    });
    helpers(fibreWood, [&](User& user) {
        EXPECT_EQ(user.text("txtFilter") + "/" + numbers(user), "/3001 3002 3003 3005 ") << "another visit";
    });
}

TEST_F(ForestHelpers, QuantitiesAreEditedInPlaceAndGuarded) {
    edit(fibreWood, [&](User& user) {
        for (int column : {1, 2, 3, 5, 7, 8}) {
            user.select("MSFG", 0, column);
            user.doubleClick("MSFG");
            EXPECT_EQ(user.focused(), "MSFG") << column;
        }
        user.select("MSFG", 0, announcedCell);
        user.type("1.250");
        user.key(Key::down);
        user.type("7");
        user.key(Key::escape);
        typeCell(user, 2, confirmedCell, "0");
        typeCell(user, 3, announcedCell, "");
        EXPECT_EQ(user.caption("lblangemMenge") + "|" + user.caption("lblbestMenge"), "1.500|450");
        EXPECT_EQ(cell(user, 0, 0) + "|" + cell(user, 1, 0) + "|" + cell(user, 2, 0), "*||*");
        user.click("btnSpeichern2");
        const auto updates = sent("UPDATE");
        ASSERT_EQ(updates.size(), 4U);
        EXPECT_EQ(updates[3],
                  "UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_ANG = NULL,MENGE_BES = 100.00, "
                  "DATUM_CHANGE_ZENT = '09.03.2026 08:00:00' WHERE (   ISNULL(MENGE_BES,99999999) <> "
                  "100.00 OR  MENGE_ANG is not null  ) AND WVO_VERTRAG_WALDHELFER.ID = 4");
        EXPECT_EQ(cell(user, 0, 8), "09.03.2026 08:00");
        EXPECT_EQ(user.grid("MSFG").currentRow(), 3) << "where the user was";
        EXPECT_EQ(user.status(), "Gespeichert");
    });
    EXPECT_EQ(stored(1), "1250.00 | 350.00 | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(2), "250.00 | NULL | NULL");
    EXPECT_EQ(stored(3), "NULL | 0.00 | 2026-03-09 08:00:00");
    EXPECT_EQ(stored(4), "NULL | 100.00 | 2026-03-09 08:00:00");

    edit(fibreWood, [&](User& user) {
        typeCell(user, 0, announcedCell, "5");
        colleague("MENGE_ANG = 6", 1);
        onConflict("Huber Josef, ME angem. – Sie: 5 – inzwischen: 6", "btnZuruck");
        user.click("btnSpeichern2");
        host.display.onMessage("noch nicht gespeichert", Answer::yes);
        user.close();
    });
    EXPECT_EQ(stored(1), "6.00 | 350.00 | 2026-03-09 08:00:00");
}

TEST_F(ForestHelpers, ManyAreAddedAndRemovedAtOnce) {
    host.personRestriction = " AND PERSONAL.ID_PERSONAL <> 99";
    host.pickedSeveral = {{20, 21, 24, 25, 26}};
    helpers(fibreWood, [&](User& user) {
        user.click("btnWaldhelfer");
        ASSERT_EQ(host.multiSelections.size(), 1U);
        EXPECT_EQ(host.multiSelections[0].list, "VERTRAG_KUNDE_WVO");
        EXPECT_EQ(
            host.multiSelections[0].query,
            "SELECT PERSONAL.ID_PERSONAL,PERSONAL.NUMMER AS [Mitgl.Nr.],PERSONAL.KURZBEZEICHNUNG AS "
            "[Mitglied Name],PERSONAL.ANREDE AS [Anrede],PERSONAL.NAME AS [Name],PERSONAL.VORNAME AS "
            "[Vorname],PERSONAL.PLZ AS [PLZ],PERSONAL.ORT AS [Ort],PERSONAL.STRASSE AS [Straße] FROM PERSONAL "
            "WHERE PERSONAL.ABRECH2 = 1 AND  ISNULL(PERSONAL.DISABLE,0) = 0 AND PERSONAL.ID_PERSONAL <> 99");
        EXPECT_EQ(host.multiSelections[0].marked, (std::vector<std::int64_t>{20, 21, 22, 24}));
        EXPECT_EQ(
            host.statements[0],
            "SELECT ID_PERSONAL FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG = 1 GROUP BY ID_PERSONAL");
        EXPECT_EQ(sent("DELETE"), std::vector<std::string>{"DELETE FROM WVO_VERTRAG_WALDHELFER WHERE "
                                                           "ID_WVO_VERTRAG = 1 AND ID_PERSONAL = 22"});
        ASSERT_EQ(sent("INSERT").size(), 2U);
        EXPECT_EQ(sent("INSERT")[0],
                  "INSERT INTO WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG,ID_PERSONAL,DATUM_CHANGE) "
                  "VALUES (1,25,NULL)");
        EXPECT_EQ(numbers(user), "3001 3002 3005 3006 3007 ");
        EXPECT_EQ(cell(user, 0, 3), "300") << "the plan is divided anew";
        EXPECT_EQ(user.status(), "Waldhelfer hinzugefügt: 2, entfernt: 1");
        EXPECT_EQ(stored(1), "400.00 | 350.00 | 2025-05-02 10:30:00")
            << "those who stay keep their quantities";

        host.statements.clear();
        host.pickedSeveral.reset();
        user.click("btnWaldhelfer");
        EXPECT_EQ(host.statements.size(), 1U) << "cancelled";
    });
    EXPECT_EQ(value("SELECT COUNT(*) FROM WVO_BEREITMELDUNG_KW WHERE ID_PERSONAL_WH = 22"), "1")
        << "the reports of one who is removed stay";
}

TEST_F(ForestHelpers, AFailureWhileManyAreAddedSaysHowManyThereAre) {
    host.pickedSeveral = {{20, 21, 22, 23, 25, 26}};
    helpers(fibreWood, [&](User& user) {
        host.database.failOn("VALUES (1,25,");
        user.click("btnWaldhelfer");
        ASSERT_EQ(host.display.errors().size(), 2U);
        EXPECT_EQ(host.display.errors()[0], "connection lost");
        EXPECT_EQ(host.display.errors()[1].find("Hinzugefügt sind 1 von 3 Waldhelfern, entfernt 1 von 1."),
                  0U);
        EXPECT_EQ(numbers(user), "3001 3002 3003 3004 ") << "as it is now";
        EXPECT_FALSE(user.usable("ProgressBar1"));
        host.database.failOn("");
        host.whileSeveralArePicked = [&] {
            host.database.execute(
                "INSERT INTO WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG,ID_PERSONAL) VALUES (1,26)");
        };
        user.click("btnWaldhelfer");
    });
    EXPECT_EQ(persons(1), "20 21 22 23 25 26 ") << "nobody twice";
}

TEST_F(ForestHelpers, OneIsAddedByTheSearch) {
    helpers(fibreWood, [&](User& user) {
        user.type("txtFilter", "Huber");
        user.key(Key::enter);
        host.pickedPerson = 25;
        user.click("btnNeu2");
        EXPECT_EQ(host.picks.back(), "2PVA2/2");
        EXPECT_EQ(user.text("txtFilter") + "/" + numbers(user), "/3001 3002 3003 3005 3006 ");
        EXPECT_EQ(cell(user, user.grid("MSFG").currentRow(), 1), "3006");
        EXPECT_EQ(user.status(), "Waldhelfer hinzugefügt");
        host.pickedPerson = 21;
        user.click("btnNeu2");
        EXPECT_EQ(cell(user, user.grid("MSFG").currentRow(), 1), "3002") << "is there already";
        host.pickedPerson = 0;
        user.click("btnNeu2");
    });
    EXPECT_EQ(persons(1), "20 21 22 24 25 ");
}

TEST_F(ForestHelpers, AllAreConfirmedAtOnceWithoutAStamp) {
    struct Case {
        const char* button;
        const char* confirmed;
        const char* stored; ///< of the first helper
    };
    const Case cases[] = {
        {"btnAMB", "400|250||100|", "400.00 | 400.00 | 2025-05-02 10:30:00"},
        {"btnAWBMB", "43||||", "400.00 | 42.50 | 2025-05-02 10:30:00"},
    };
    helpers(fibreWood, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.button);
            host.display.onMessage("Aktualisieren beendet.");
            user.click(c.button);
            std::string confirmed;
            for (int row = 0; row < 4; ++row)
                confirmed += cell(user, row, confirmedCell) + "|";
            EXPECT_EQ(confirmed, c.confirmed);
            EXPECT_EQ(stored(1), c.stored);
        }
    });
    EXPECT_EQ(stored(5), "300.00 | 300.00 | 2024-11-21 08:00:00") << "of another contract";
}

TEST_F(ForestHelpers, DeletingAsksFirst) {
    helpers(fibreWood, [&](User& user) {
        user.select("MSFG", 1);
        host.display.onMessage("Text 247\nText 215\nText 248", Answer::no);
        user.click("btnLoschen2");
        EXPECT_EQ(host.display.messages().back().flags,
                  ui::box::yesNo + ui::box::exclamation + ui::box::defaultButton2);
        EXPECT_EQ(numbers(user), "3001 3002 3003 3005 ");
        host.display.onMessage("Text 247", Answer::yes);
        user.click("btnLoschen2");
        EXPECT_EQ(numbers(user), "3001 3003 3005 ");
        EXPECT_EQ(sent("DELETE"),
                  std::vector<std::string>{"DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID = 2"});
        EXPECT_EQ(user.grid("MSFG").currentRow(), 1);
    });
}

TEST_F(ForestHelpers, WhatCanBeUsedWhen) {
    struct Case {
        const char* control;
        bool viewing;
        bool editing;
    };
    const Case cases[] = {
        {"btnNeu2", true, false},       {"btnBearbeiten2", true, false}, {"btnSpeichern2", false, true},
        {"btnAbbrechen2", false, true}, {"btnLoschen2", true, false},    {"btnWaldhelfer", true, false},
        {"btnAMB", true, false},        {"btnAWBMB", true, false},       {"txtFilter", true, false},
        {"MSFG", true, true},
    };
    const auto expect = [&](User& user, bool Case::*mode) {
        for (const Case& c : cases)
            EXPECT_EQ(user.usable(c.control), c.*mode) << c.control;
    };
    helpers(fibreWood, [&](User& user) {
        expect(user, &Case::viewing);
        user.click("btnBearbeiten2");
        expect(user, &Case::editing);
        user.type("9");
        user.key(Key::up);
        EXPECT_EQ(cell(user, 0, announcedCell), "9") << "the first quantity was ready to be typed over";
        user.click("btnAbbrechen2");
        expect(user, &Case::viewing);
        EXPECT_EQ(cell(user, 0, announcedCell), "400");
    });
}

TEST_F(ForestHelpers, GoToTheSpreadsheetWithTheirSums) {
    helpers(fibreWood, [&](User& user) {
        user.click("btnXLS");
        ASSERT_EQ(host.documents.exports.size(), 1U);
        EXPECT_EQ(user.status(), "Tabelle erstellt");
        EXPECT_EQ(host.documents.exports[0].title, "Vertrag: R-2025-003 Faserholz Judenburg");
        EXPECT_EQ(host.documents.exports[0].parameters,
                  "FORMAT=0;;0;0;0;0;\r\nROW=1\r\nTABLE="
                  "Mitgl.Nr.\tMitglied Name\tME geplant\tME angem.\tME angem. WB\tME best.\tWH "
                  "Änderung\tZent. Änderung\r\n"
                  "3001\tHuber Josef\t375\t400\t211\t350\t01.05.2025 08:15\t02.05.2025 10:30\r\n"
                  "3002\tMüller Käthe\t375\t250\t75\t\t03.05.2025 17:45\t\r\n"
                  "3003\tÖllinger Franz\t375\t\t\t\t\t\r\n"
                  "3005\tSteiner Alois\t375\t100\t\t100\t01.05.2025 07:00\t02.05.2025 10:30\r\n"
                  "\tSUMME:\t1.500\t750\t286\t450\t\t");
        auto columns = user.grid("MSFG").columns();
        columns[1].visible = columns[2].visible = columns[3].visible = false;
        user.grid("MSFG").setColumns(columns);
        user.type("txtFilter", "3001");
        user.key(Key::tab);
        user.click("btnXLS");
        EXPECT_EQ(host.documents.exports[1].parameters,
                  "FORMAT=0;0;0;\r\nROW=1\r\nTABLE=ME angem.\tME angem. WB\tME best.\tWH Änderung\tZent. "
                  "Änderung\r\n400\t211\t350\t01.05.2025 08:15\t02.05.2025 10:30\r\n400\t211\t350\tSUMME:\t")
            << "only what is seen";
        user.click("btnBearbeiten2");
        EXPECT_FALSE(user.usable("btnXLS") || user.usable("btnSerienmail"));
    });
    host.display.onMessage("Achtung!");
    helpers(withoutHelpers, [](User& user) { EXPECT_FALSE(user.usable("btnXLS")); });
}

TEST_F(ForestHelpers, AreMailedTogether) {
    helpers(fibreWood, [&](User& user) {
        host.statements.clear();
        user.click("btnSerienmail");
        EXPECT_EQ(
            host.statements,
            std::vector<std::string>{
                "SELECT  distinct isnull(PERSONAL.EMAIL,PERSONAL.NUMMER) as Mail  FROM (SELECT 1 AS ID) "
                "KOPF  LEFT JOIN WVO_VERTRAG_WALDHELFER ON WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = "
                "KOPF.ID  LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = "
                "WVO_VERTRAG_WALDHELFER.ID_PERSONAL WHERE isnull(PERSONAL.EMAIL,PERSONAL.NUMMER) is not "
                "null AND ISNULL(DISABLE,0) = 0 "});
        ASSERT_EQ(host.documents.mails.size(), 1U);
        EXPECT_EQ(user.status(), "Serienmail übergeben");
        user.window().status().clear();
        const auto& mail = host.documents.mails.front();
        EXPECT_EQ(std::set<std::string>(mail.recipients.begin(), mail.recipients.end()),
                  (std::set<std::string>{"SMTP:josef.huber@helfer.example", "SMTP:3002",
                                         "SMTP:franz.oellinger@helfer.example"}))
            << "the member number where there is no address; nobody who is disabled";
        EXPECT_EQ(mail.subject, "Information zum Vertrag R-2025-003 Faserholz Judenburg");
        EXPECT_EQ(mail.text, "Sehr geehrter Waldhelfer,\r\n" + std::string(26, ' '));

        host.documents.mailFailure = "no route to host";
        host.display.onMessage("Automatisches Versenden fehlgeschlagen.\nno route to host");
        user.click("btnSerienmail");
        host.documents.mailFailure.clear();
        host.documents.userSends = false;
        user.click("btnSerienmail");
        EXPECT_EQ(host.documents.mails.size(), 3U) << "what the user does not send is told by nobody";
        EXPECT_EQ(user.status(), "");
    });
}

} // namespace
} // namespace tellurix::tests
