#include "tests/support/ContractTest.h"
#include "tests/support/EarlierVisit.h"

#include <algorithm>

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

class ContractEditor : public ContractTest {
protected:
    void edit(std::int32_t contract, const ScriptedDisplay::Script& script, bool newVertrag = false,
              const std::string& type = "R") {
        host.display.onWindow("F_Vertrag", script);
        host.openContract(contract, type, newVertrag);
    }

    /// Creates a contract with rows in all its tables, as the host and earlier work would.
    std::int32_t newContract() {
        base::Connection& db = host.database;
        db.execute("INSERT INTO VERTRAEGE (VERTRAG_NAME,VER_TYPE) VALUES ('Neu','R')");
        const std::string id = value("SELECT MAX(ID_VERTRAG) FROM VERTRAEGE");
        db.execute("INSERT INTO VERTRAG_PREISE (ID_VERTRAG,ORDNUNG) VALUES (" + id + ",1)");
        db.execute("INSERT INTO VERTRAG_MENGEN (ID_VERTRAG,ORDNUNG) VALUES (" + id + ",1)");
        db.execute("INSERT INTO WVO_VERTRAG (ID_VERTRAEGE) VALUES (" + id + ")");
        const std::string logistics = value("SELECT MAX(ID) FROM WVO_VERTRAG");
        db.execute("INSERT INTO WVO_VERTAG_KALENDER (ID_WVO_VERTRAG,JAHR,WOCHE) VALUES (" + logistics +
                   ",2026,5)");
        db.execute("INSERT INTO WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG,ID_PERSONAL) VALUES (" + logistics +
                   ",20)");
        return std::stoi(id);
    }

    /// How many rows all contract tables hold together.
    std::string rowCounts() {
        std::string counts;
        for (const char* table : {"VERTRAEGE", "VERTRAG_PREISE", "VERTRAG_MENGEN", "WVO_VERTRAG",
                                  "WVO_VERTAG_KALENDER", "WVO_VERTRAG_WALDHELFER"}) {
            counts += value(std::string{"SELECT COUNT(*) FROM "} + table) + " ";
        }
        return counts;
    }
};

TEST_F(ContractEditor, ShowsTheContract) {
    edit(1, [&](User& user) {
        EXPECT_EQ(user.window().title(), "Vertrag (R-2025-001 Fichte Wolfsberg)");
        EXPECT_EQ(user.text("txtKunde"),
                  value("SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = 10"));
        EXPECT_NE(user.items("List1").find("Vertragsdatum: 07.01.2025\n"), std::string::npos);
        EXPECT_NE(user.items("List1").find("Text 3062: Lieferung frei Werk Wolfsberg, Tor 2\n"),
                  std::string::npos);
        EXPECT_NE(user.items("List1").find("Text 4110: 12,50\n"), std::string::npos);
        EXPECT_EQ(std::to_string(user.grid("Grid1").rows().size()),
                  value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"));
        EXPECT_FALSE(user.grid("Grid2").columns()[0].visible) << "the mark of the current line";
        EXPECT_EQ(user.grid("Grid2").cell(0, 1),
                  value("SELECT BEZEICHNUNG FROM VERTRAG_MENGEN WHERE ID_VERTRAG = 1 AND ORDNUNG = 1"));
        EXPECT_EQ(
            user.text("txtAbschlag"),
            value(
                "SELECT ABS_MODEL FROM ABSCHLAG WHERE RECH_NAME = 'R-2025-001 Fichte Wolfsberg' AND VER_TYPE = 'V'"));
        EXPECT_FALSE(user.checked("chkAbgeschlossen"));
        EXPECT_TRUE(user.usable("btnLieferprofil_WVO"));
        EXPECT_FALSE(user.usable("btnWord")) << "not part of the module yet";
        user.close();
    });
}

TEST_F(ContractEditor, TheSummaryNamesEachFieldAndLeavesOutTheEmptyOnes) {
    const auto shown = [](User& user) {
        return user.items("List1") + user.text("txtAbschlag") + "|" + user.text("txtZusatz") + "|" +
               user.text("txtZusatzText(0)") + "|" + user.text("txtZusatzText(1)") + "|" +
               user.text("txtKunde");
    };
    edit(
        fullContract,
        [&](User& user) {
            EXPECT_EQ(
                shown(user),
                "Vertragsdatum: 01.02.2024\nLieferzeitraum: 05.02.2024 – 06.12.2024\n"
                "Text 3396: 02.02.2024\nText 3397: 03.02.2024\nText 3398: 04.02.2024\n"
                "Lieferadresse: Holzplatz Judenburg\nText 3399: Stornorechnung für Käufer\n"
                "Text 3400: Dienstleistung 20 %\nText 3401: CHF\nText 3385: Schlag Tannhof\n"
                "Text 3386: Zahlung in drei Raten\nText 3387: Rinde beim Käufer\n"
                "Text 3388: Auszeige durch den Förster\nText 3389: Rückegassen ausgesteckt\n"
                "Text 3390: Bringung bei Frost\nText 3391: Waldort Abteilung 7\n"
                "Text 3392: Schlagruhe im April\nText 3393: Reisig bleibt liegen\n"
                "Text 3394: Haftung beim Käufer\nText 4172: 1,01\nText 4173: 20,02\nText 4174: 300,03\n"
                "Text 4175: 4.000,04\nText 4176: 50.000,05\nText 4177: 6,06\nText 4178: 70,07\n"
                "Text 4179: 800,08\nText 4180: 9.000,09\nText 4181: 10.000,10\n"
                "Stockkauf Bauernwald|Stockkauf nach Hieb|Grenzen bezeichnet|Kaution hinterlegt|Zöhrer Karl");
            user.close();
        },
        false, "A6");
    edit(
        sparseContract,
        [&](User& user) {
            EXPECT_EQ(shown(user),
                      "Lieferzeitraum:  – 06.11.2024\nText 3345: 02.03.2024\nText 3347: 04.03.2024\n"
                      "Lieferadresse: Heizwerk Wörgl\nText 3349: Frachterlöse\nText 3350: EUR\n"
                      "Text 3334: Fracht nur tagsüber\nText 3336: Maut beim Auftraggeber\n"
                      "Text 3338: Ladezeit eine Stunde\nText 3340: Anmeldung per Telefon\n"
                      "Text 3342: Standgeld nach Tarif\nText 4142: 11,50\nText 4144: 13,25\n"
                      "Text 4146: 15,75\nText 4148: 17,05\nText 4150: 19,95\n||Kette mitführen||");
            user.close();
        },
        false, "A3");
}

TEST_F(ContractEditor, NullFlagsReadAsClearAndAContractWithoutCustomerIsEmpty) {
    edit(7, [&](User& user) {
        EXPECT_FALSE(user.checked("chkAbgeschlossen"));
        EXPECT_FALSE(user.checked("chkAClEmpty"));
        EXPECT_EQ(user.text("txtKunde"), "");
        user.close();
    });
    edit(2, [&](User& user) {
        EXPECT_TRUE(user.checked("chkAClEmpty"));
        user.close();
    });
    edit(5, [&](User& user) {
        EXPECT_TRUE(user.checked("chkAbgeschlossen"));
        user.close();
    });
}

TEST_F(ContractEditor, SavingWritesFlagsAndAccessLevel) {
    struct Case {
        const char* rule;
        std::int32_t contract;
        std::vector<const char*> clicks;
        const char* written; // ABGESCHLOSSEN | ACL_EMPTY | ID_ACCESS_LEVELS
    };
    const Case cases[] = {
        {"access level 0 is NULL", 1, {}, "false | false | NULL"},
        {"closed", 1, {"chkAbgeschlossen"}, "true | false | NULL"},
        {"the contract's own level stays", 6, {}, "false | false | 5"},
        {"visible on all levels takes the level away", 6, {"chkAClEmpty"}, "false | true | NULL"},
        {"and does not bring it back", 6, {"chkAClEmpty"}, "false | false | NULL"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        edit(c.contract, [&](User& user) {
            for (const char* box : c.clicks)
                user.click(box);
            user.click("btnSpeichern");
        });
        EXPECT_EQ(row("SELECT ABGESCHLOSSEN,ACL_EMPTY,ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG = " +
                      std::to_string(c.contract)),
                  c.written);
    }
}

TEST_F(ContractEditor, AnExistingContractClosesWithoutAQuestionAndWithoutSavingTheFlags) {
    const auto before = rowCounts();
    edit(1, [&](User& user) {
        user.click("chkAbgeschlossen");
        user.click("btnAbbrechen");
    });
    EXPECT_EQ(rowCounts(), before);
    EXPECT_EQ(value("SELECT ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "false");
    EXPECT_TRUE(host.display.messages().empty());
}

TEST_F(ContractEditor, ANewContractIsDiscardedOnYesOnly) {
    const auto before = rowCounts();
    const std::int32_t id = newContract();
    const std::string key = std::to_string(id);
    host.display.onMessage("Text 1078", Answer::no);
    host.display.onMessage("Text 1078", Answer::no);
    host.display.onMessage("Text 1078", Answer::yes);
    edit(
        id,
        [&](User& user) {
            EXPECT_EQ(value("SELECT INVDATE FROM VERTRAEGE WHERE ID_VERTRAG = " + key), "2026-03-09");
            user.click("btnAbbrechen");
            EXPECT_TRUE(user.window().loaded()) << "No keeps the editor open";
            user.close();
            EXPECT_EQ(host.display.messages().back().flags, ui::box::yesNo | ui::box::defaultButton2);
            host.statements.clear();
            user.key(Key::escape);
        },
        true);
    EXPECT_EQ(
        host.statements,
        (std::vector<std::string>{
            "DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG = " + key,
            "DELETE FROM VERTRAG_MENGEN WHERE ID_VERTRAG = " + key,
            "DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE "
            "ID_VERTRAEGE = " +
                key + ")",
            "DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE "
            "ID_VERTRAEGE = " +
                key + ")",
            "DELETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = " + key,
            "DELETE FROM VERTRAEGE WHERE ID_VERTRAG = " + key,
        }));
    EXPECT_EQ(rowCounts(), before) << "nothing of it is left, nothing else is gone";
}

TEST_F(ContractEditor, ANewContractThatWasSavedStays) {
    const std::int32_t id = newContract();
    const auto before = rowCounts();
    edit(
        id, [](User& user) { user.click("btnSpeichern"); }, true);
    EXPECT_EQ(rowCounts(), before);
}

TEST_F(ContractEditor, ADiscardThatFailsInTheMiddleKeepsTheEditorOpen) {
    const std::int32_t id = newContract();
    host.display.onMessage("Text 1078", Answer::yes);
    host.display.onMessage("Text 1078", Answer::yes);
    edit(
        id,
        [&](User& user) {
            host.database.failOn("DELETE FROM WVO_VERTRAG WHERE");
            user.close();
            EXPECT_EQ(host.display.errors(), std::vector<std::string>{"connection lost"});
            EXPECT_TRUE(user.window().loaded());
            EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id)), "1");
            host.database.failOn("");
            user.close();
        },
        true);
    EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id)), "0");
}

TEST_F(ContractEditor, AFailingSaveKeepsTheEditorOpenAndTheContractUnsaved) {
    const std::int32_t id = newContract();
    host.display.onMessage("Text 1078", Answer::no);
    edit(
        id,
        [&](User& user) {
            user.click("chkAbgeschlossen");
            host.database.failOn("SET ABGESCHLOSSEN");
            user.click("btnSpeichern");
            EXPECT_TRUE(user.checked("chkAbgeschlossen"));
            host.database.failOn("");
            user.close();
            user.click("btnSpeichern");
        },
        true);
    EXPECT_EQ(value("SELECT ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id)), "true");
}

TEST_F(ContractEditor, AFailureWhileOpeningFailsTheCallAndNotifiesNobody) {
    host.database.failOn("ZUSATZTEXT_1");
    EXPECT_THROW(host.openContract(1), base::DatabaseError);
    EXPECT_TRUE(host.requests.empty());
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(ContractEditor, RemovingAndChoosingTheCustomerWritesAtOnce) {
    edit(1, [&](User& user) {
        user.click("btnDeleteMan");
        EXPECT_EQ(user.text("txtKunde"), "");
        EXPECT_EQ(value("SELECT ID_PERSONAL FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "NULL");
        user.close();
    });
    EXPECT_EQ(value("SELECT ID_PERSONAL FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "NULL")
        << "survives without saving";
    EXPECT_EQ(value("SELECT KOPF1 FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
              "Lieferung frei Werk Wolfsberg, Tor 2");

    host.pickedPerson = 11;
    edit(6, [](User& user) {
        user.click("KundeButton");
        user.close();
    });
    edit(1, [&](User& user) {
        user.alt(U'K'); // shared by "&Kunde" and "&Kopf": goes to the first and presses nothing
        user.key(Key::enter);
        EXPECT_EQ(user.text("txtKunde"),
                  value("SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = 11"));
        EXPECT_EQ(user.status(), "Kunde eingetragen – schon gespeichert, „Abbrechen“ nimmt es nicht zurück");
        host.pickedPerson = 0;
        user.click("KundeButton");
        EXPECT_NE(user.text("txtKunde"), "") << "choosing nobody changes nothing";
        host.database.execute("UPDATE VERTRAEGE SET ID_PERSONAL = NULL WHERE ID_VERTRAG = 1");
        host.pickedPerson = 11;
        user.click("KundeButton");
        user.close();
    });
    EXPECT_EQ(value("SELECT ID_PERSONAL FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "11")
        << "the shown customer is written again";
    EXPECT_EQ(host.picks, (std::vector<std::string>{"2PVK/5", "2PVK/2", "2PVK/2", "2PVK/2"}))
        << "with the contract's level, or the user's when it has none";
    EXPECT_EQ(host.requests, (std::vector<std::string>{"1VVM/R", "2PVK/R", "1VVM/R", "2PVK/R", "2PVK/R",
                                                       "2PVK/R", "1VVM/R"}));
}

TEST_F(ContractEditor, AdditionalTextsAreWrittenWhenTheyAreLeft) {
    host.columnWidths["VERTRAEGE.ZUSATZTEXT_2"] = 12;
    edit(1, [&](User& user) {
        EXPECT_FALSE(user.usable("txtZusatz"));
        user.click("btnZusatz");
        EXPECT_EQ(user.focused(), "txtZusatz");
        user.type("Holz vom Käfer");
        user.key(Key::tab);
        EXPECT_EQ(value("SELECT ZUSATZTEXT FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "Holz vom Käfer");
        user.type("txtZusatzText(1)", "");
        user.key(Key::tab);
        EXPECT_EQ(value("SELECT ZUSATZTEXT_2 FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "NULL");
        user.type("txtZusatzText(0)", "Förster's Auflage");
        user.click("btnSpeichern");
        EXPECT_EQ(user.focused(), "txtZusatzText(0)");
        EXPECT_EQ(host.display.errors().size(), 1u);
        user.type("txtZusatzText(0)", "Auflage");
        user.click("cmdZusatzText");
        EXPECT_FALSE(user.usable("txtZusatz"));
        user.click("btnZusatz");
        user.type("txtZusatz", "zuletzt getippt");
        user.type("txtZusatzText(1)", "so lang, wie die Spalte ist");
        EXPECT_EQ(user.text("txtZusatzText(1)"), "so lang, wie") << "the width of its column";
        user.type("txtZusatzText(1)", "");
        user.close();
    });
    EXPECT_EQ(row("SELECT ZUSATZTEXT,ZUSATZTEXT_1 FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
              "zuletzt getippt | Auflage");
}

TEST_F(ContractEditor, ARefusedTextIsAskedForOnceAndNeverKeepsTheEditorOpen) {
    struct Case {
        const char* rule;
        void (*close)(User&);
    };
    const Case cases[] = {
        {"Esc", [](User& user) { user.key(Key::escape); }},
        {"the close box", [](User& user) { user.close(); }},
        {"Abbrechen", [](User& user) { user.click("btnAbbrechen"); }},
    };
    const auto before =
        row("SELECT ZUSATZTEXT,ZUSATZTEXT_1,ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = 1");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        const auto messages = host.display.messages().size();
        for (const Answer answer : {Answer::no, Answer::yes})
            host.display.onMessage("Der Text konnte nicht gespeichert werden. Verwerfen?", answer);
        edit(1, [&](User& user) {
            user.click("btnZusatz");
            user.type("txtZusatzText(0)", "Förster's Auflage");
            c.close(user);
            EXPECT_EQ(user.focused(), "txtZusatzText(0)") << "No goes back to the text";
            EXPECT_EQ(user.text("txtZusatzText(0)"), "Förster's Auflage");
            user.click("chkAbgeschlossen");
            EXPECT_FALSE(user.checked("chkAbgeschlossen")) << "the box is not left with it";
            c.close(user);
            if (!user.window().loaded()) return;
            EXPECT_EQ(user.focused(), "btnZusatz") << "Esc closes the frame first";
            c.close(user);
        });
        EXPECT_EQ(host.display.messages().size(), messages + 2);
        EXPECT_EQ(host.display.messages().back().flags,
                  ui::box::yesNo + ui::box::exclamation + ui::box::defaultButton2);
    }
    EXPECT_EQ(row("SELECT ZUSATZTEXT,ZUSATZTEXT_1,ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
              before);
}

TEST_F(ContractEditor, SavingWritesWaitingTextsBeforeTheFlags) {
    const std::int32_t id = newContract();
    host.display.onMessage("Text 1078", Answer::no);
    host.display.onMessage("Text 1078", Answer::no);
    edit(
        id,
        [&](User& user) {
            user.click("chkAbgeschlossen");
            user.click("btnZusatz");
            user.type("txtZusatz", "Auflage");
            user.click("btnAbbrechen"); // leaves the box without writing it
            EXPECT_EQ(user.focused(), "btnAbbrechen");
            host.database.failOn("ZUSATZTEXT = ");
            user.click("btnSpeichern");
            EXPECT_NE(value("SELECT ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id)),
                      "true");
            host.database.failOn("");
            user.close();
            EXPECT_EQ(host.display.messages().size(), 2u) << "a failed save does not count as one";
            user.click("btnSpeichern");
        },
        true);
    EXPECT_EQ(row("SELECT ZUSATZTEXT,ABGESCHLOSSEN FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id)),
              "Auflage | true");
}

TEST_F(ContractEditor, AContractThatAColleagueDeletedIsTold) {
    struct Case {
        const char* rule;
        void (*act)(User&);
    };
    const Case cases[] = {
        {"the flags", [](User& user) { user.click("btnSpeichern"); }},
        {"the customer", [](User& user) { user.click("KundeButton"); }},
        {"no customer", [](User& user) { user.click("btnDeleteMan"); }},
        {"an additional text",
         [](User& user) {
             user.click("btnZusatz");
             user.type("txtZusatz", "zu spät");
             user.key(Key::tab);
             user.type("txtZusatz", "");
         }},
        {"the head data", [](User& user) { user.click("btnHeader"); }},
    };
    host.pickedPerson = 11;
    // Where the logistics have been open before, the server counts no rows any more.
    for (const char* counting : {"SET NOCOUNT OFF", "SET NOCOUNT ON"}) {
        SCOPED_TRACE(counting);
        host.database.execute(counting);
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            const std::int32_t id = newContract();
            const auto errors = host.display.errors().size();
            edit(id, [&](User& user) {
                host.database.execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(id));
                c.act(user);
                ASSERT_TRUE(user.window().loaded());
                ASSERT_EQ(host.display.errors().size(), errors + 1);
                EXPECT_NE(host.display.errors().back().find("inzwischen gelöscht"), std::string::npos);
                user.click("btnAbbrechen");
            });
        }
    }
}

TEST_F(ContractEditor, AContractWithAnApostropheInItsNameOpensWithoutADeductionModel) {
    host.database.execute("UPDATE VERTRAEGE SET VERTRAG_NAME = 'O''Neill' WHERE ID_VERTRAG = 1");
    edit(1, [&](User& user) {
        EXPECT_EQ(user.window().title(), "Vertrag (O'Neill)");
        EXPECT_EQ(user.text("txtAbschlag"), "");
        EXPECT_NE(user.caption("lblOhneAbschlag").find("Apostroph"), std::string::npos);
        EXPECT_TRUE(user.control<ui::Label>("lblOhneAbschlag").visible());
        user.close();
    });
    edit(2, [](User& user) {
        EXPECT_FALSE(user.control<ui::Label>("lblOhneAbschlag").visible());
        user.close();
    });
}

TEST_F(ContractEditor, ARowOfTheOverviewsIsTheWayToItsScreenAndKeepsItsOwnWidths) {
    host.display.onWindow("F_Vertrag", [&](User& user) {
        host.layouts.clear();
        user.focus("Grid1");
        ui::Grid& overview = user.grid("Grid1");
        overview.sizeColumn(1, 20);
        user.select("Grid1", 1, 1);
        user.key(Key::enter);
        EXPECT_EQ(overview.columns()[1].width, 20) << "the lines' own table is not as wide";
        user.select("Grid2", 2, 1);
        user.doubleClick("Grid2");
        user.focus("List1");
        user.key(Key::enter);
        user.click("btnAbbrechen");
    });
    for (const auto& [form, row] : {std::pair{"F_VertragPreise", 1}, std::pair{"F_VertragMengen", 2}})
        host.display.onWindow(form, [row = row](User& user) {
            EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), row);
            user.close();
        });
    host.display.onWindow("F_HeaderVertrag", [](User& user) { user.close(); });
    host.openContract(1);
    EXPECT_EQ(std::ranges::count(host.layouts, "save/Grid1/F_Vertrag.Grid1"), 1);
    EXPECT_EQ(std::ranges::count(host.layouts, "save/Grid2/F_Vertrag.Grid2"), 0) << "nobody has changed it";
    EXPECT_EQ(std::ranges::count(host.layouts, "restore/MSFlexGrid1/F_VertragPreise.MSFlexGrid1"), 1)
        << "only where it is shown";
}

TEST_F(ContractEditor, TheHeaderIsShownAgainAfterItWasEdited) {
    host.display.onWindow("F_Vertrag", [&](User& user) {
        user.click("btnHeader");
        EXPECT_NE(user.items("List1").find("Text 3062: geändert\n"), std::string::npos);
        user.click("btnSpeichern");
    });
    host.display.onWindow("F_HeaderVertrag", [&](User& user) {
        user.type("txtKopf(0)", "geändert");
        // Another user gives the contract a level while the header is open; saving must not undo it.
        host.database.execute("UPDATE VERTRAEGE SET ID_ACCESS_LEVELS = 7 WHERE ID_VERTRAG = 1");
        user.click("btnOk");
    });
    host.openContract(1);
    EXPECT_EQ(value("SELECT ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "7");
}

} // namespace
} // namespace tellurix::tests
