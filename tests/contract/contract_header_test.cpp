#include "module/ui/controls/Grid.h"
#include "tests/support/ContractTest.h"
#include "tests/support/EarlierVisit.h"

#include <thread>

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

class ContractHeader : public ContractTest {
protected:
    /// Opens the head data of a contract from its editor, and closes the editor afterwards.
    void editHeader(std::int32_t contract, const ScriptedDisplay::Script& script,
                    const std::string& type = "R") {
        host.display.onWindow("F_Vertrag", [](User& user) {
            user.click("btnHeader");
            user.click("btnAbbrechen");
        });
        host.display.onWindow("F_HeaderVertrag", script);
        host.openContract(contract, type);
    }
};

TEST_F(ContractHeader, EveryBoxShowsItsOwnColumnAndOkWritesItBack) {
    struct Case {
        std::int32_t contract;
        const char* keys; ///< of invoice kind, booking kind, currency, client, delivery address
        const char* boxes;
    };
    const Case cases[] = {
        {fullContract, "5|4|0|2|53|",
         "01.02.2024|02.02.2024|03.02.2024|04.02.2024|05.02.2024|06.12.2024|Stornorechnung für "
         "Käufer|Dienstleistung 20 %|CHF|101|Holzkontor Ennsblick|6004|Holzplatz Judenburg|1,01|Schlag "
         "Tannhof|20,02|Zahlung in drei Raten|300,03|Rinde beim Käufer|4000,04|Auszeige durch den "
         "Förster|50000,05|Rückegassen ausgesteckt|6,06|Bringung bei Frost|70,07|Waldort Abteilung "
         "7|800,08|Schlagruhe im April|9000,09|Reisig bleibt liegen|10000,10|Haftung beim Käufer|"},
        {sparseContract, "|5|1||54|",
         "|02.03.2024||04.03.2024||06.11.2024||Frachterlöse|EUR|||6005|Heizwerk Wörgl|11,50|Fracht nur "
         "tagsüber|||13,25|Maut beim Auftraggeber|||15,75|Ladezeit eine Stunde|||17,05|Anmeldung per "
         "Telefon|||19,95|Standgeld nach Tarif|||"},
    };
    for (const Case& c : cases) {
        const std::string query = "SELECT * FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(c.contract);
        const std::string before = row(query);
        editHeader(c.contract, [&](User& user) {
            std::string keys;
            for (const char* box :
                 {"txtRechn", "txtBuchn", "txtWahrung", "txtMandant(0)", "txtLieferadresse(0)"})
                keys += user.tag(box) + "|";
            EXPECT_EQ(keys, c.keys);
            std::string boxes;
            for (const char* box : {"txtDate1", "txtDate2", "txtDate3", "txtDate4", "txtLieferVon",
                                    "txtLieferBis", "txtRechn", "txtBuchn", "txtWahrung", "txtMandant(0)",
                                    "txtMandant(1)", "txtLieferadresse(0)", "txtLieferadresse(1)"})
                boxes += user.text(box) + "|";
            for (int i = 0; i < 10; ++i) {
                for (const char* box : {"txtNumber", "txtKopf"})
                    boxes += user.text(box + ("(" + std::to_string(i) + ")")) + "|";
            }
            EXPECT_EQ(boxes, c.boxes);
            user.click("btnOk");
        });
        EXPECT_EQ(row(query), before);
    }
}

TEST_F(ContractHeader, CaptionsFollowTheContractType) {
    struct Case {
        const char* type;
        std::vector<int> captions; // LabelKopf(0), LabelKopf(9), lblDate2, lblWahrung, lblNumber(9)
    };
    const Case cases[] = {
        {"R", {3062, 3063, 3024, 748, 4119}},   {"r", {3062, 3063, 3024, 748, 4119}},
        {"A1", {3300, 3309, 3311, 3316, 4131}}, {"A4", {3351, 3360, 3362, 3367, 4161}},
        {"A8", {3419, 3428, 3430, 3435, 4201}}, {"Z", {0, 9, 11, 16, 9}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.type);
        editHeader(
            1,
            [&](User& user) {
                const char* labels[] = {"LabelKopf(0)", "LabelKopf(9)", "lblDate2", "lblWahrung",
                                        "lblNumber(9)"};
                for (std::size_t i = 0; i < std::size(labels); ++i) {
                    EXPECT_EQ(user.caption(labels[i]), "Text " + std::to_string(c.captions[i])) << labels[i];
                }
                EXPECT_EQ(user.caption("lblVertragsDatum"), "Vertragsdatum*");
                user.key(Key::escape);
            },
            c.type);
    }
}

TEST_F(ContractHeader, OkWritesWhatTheBoxesShow) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed;
        const char* column;
        const char* written;
    };
    const Case cases[] = {
        {"an empty contract date is NULL", "txtDate1", "", "INVDATE", "NULL"},
        {"a short date is completed", "txtDate2", "1.2.26", "DATE1", "2026-02-01"},
        {"a cleared delivery end is NULL", "txtLieferBis", "", "LIEFERBIS", "NULL"},
        {"a decimal comma becomes a point", "txtNumber(0)", "12,5", "NUMM1", "12.5000"},
        {"a point between thousands is no decimal point", "txtNumber(1)", "1.250", "NUMM2", "1250.0000"},
        {"what is not numeric is NULL", "txtNumber(2)", ",", "NUMM3", "NULL"},
        {"a free text as it stands", "txtKopf(3)", "Länge \"4,0\"; -- 10 % [Übermaß]", "KOPF4",
         "Länge \"4,0\"; -- 10 % [Übermaß]"},
        {"an empty free text is NULL", "txtKopf(0)", "", "KOPF1", "NULL"},
        {"an emptied lookup is NULL", "txtRechn", "", "RART_ID", "NULL"},
        {"a cleared client is NULL", "txtMandant(0)", "", "ID_MANDANTEN", "NULL"},
        {"the home currency in any case", "txtWahrung", "chf", "EURO", "false"},
        {"an empty currency is the home currency", "txtWahrung", "", "EURO", "false"},
        {"any other currency is the euro", "txtWahrung", "usd", "EURO", "true"},
        // The last one: a stored quote has to be doubled again before the row can be saved.
        {"a doubled quote is no end of the text", "txtKopf(1)", "D''Angelo", "KOPF2", "D'Angelo"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editHeader(1, [&](User& user) {
            user.type(c.box, c.typed);
            user.click("btnOk");
        });
        EXPECT_EQ(value(std::string{"SELECT "} + c.column + " FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
                  c.written);
    }
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(ContractHeader, CancellingWritesNothingEvenWithABadDate) {
    const auto before = value("SELECT KOPF1 FROM VERTRAEGE WHERE ID_VERTRAG = 1");
    editHeader(1, [](User& user) {
        user.type("txtKopf(0)", "geändert");
        user.type("txtDate1", "99");
        user.click("btnCancel");
    });
    EXPECT_EQ(value("SELECT KOPF1 FROM VERTRAEGE WHERE ID_VERTRAG = 1"), before);
}

TEST_F(ContractHeader, EscAndTheCloseBoxAskOnceAboutWhatWasTyped) {
    const std::function<void(User&)> ways[] = {[](User& user) { user.key(Key::escape); },
                                               [](User& user) { user.close(); }};
    for (const auto& leave : ways) {
        editHeader(1, [&](User& user) {
            EXPECT_EQ(user.window().title(), "Kopf – R-2025-001 Fichte Wolfsberg");
            user.type("txtKopf(0)", "geändert");
            host.display.onMessage("noch nicht gespeichert", ui::Answer::no);
            leave(user);
            EXPECT_EQ(ui::box::defaultOf(host.display.messages().back().flags), 1) << "No is the default";
            EXPECT_EQ(user.text("txtKopf(0)"), "geändert");
            host.display.onMessage("noch nicht gespeichert", ui::Answer::yes);
            leave(user);
        });
        editHeader(1, leave); // nothing was typed: nothing is asked
    }
}

TEST_F(ContractHeader, ABadDateShowsTheMessageAndKeepsTheFocus) {
    host.display.onMessage("Text 223");
    editHeader(1, [&](User& user) {
        user.type("txtLieferVon", "31.2.2025");
        user.click("btnOk");
        EXPECT_EQ(user.focused(), "txtLieferVon");
        EXPECT_EQ(user.text("txtLieferVon"), "31.2.2025");
        EXPECT_EQ(host.display.messages().back().title, "Tellurix");
        user.type("txtLieferVon", "28.2.2025");
        user.click("btnOk");
    });
    EXPECT_EQ(value("SELECT LIEFERVON FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "2025-02-28");
}

TEST_F(ContractHeader, APeriodThatEndsBeforeItBeginsIsMarkedAndWrittenAsItIs) {
    editHeader(1, [](User& user) {
        const auto warning = [&] { return user.control<ui::TextBox>("txtLieferBis").warning(); };
        EXPECT_EQ(warning(), "");
        user.type("txtLieferVon", "1.3.2025");
        user.type("txtLieferBis", "28.2.2025");
        EXPECT_EQ(warning(), "") << "nobody has left it yet";
        user.focus("txtLieferVon");
        EXPECT_EQ(warning(), "Das Ende liegt vor dem Beginn am 01.03.2025.");
        user.type("txtLieferVon", "28.2.2025");
        user.focus("txtLieferBis");
        EXPECT_EQ(warning(), "") << "one day is a period";
        user.type("txtLieferBis", "27.2.2025");
        user.click("btnOk");
    });
    EXPECT_EQ(value("SELECT LIEFERBIS FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "2025-02-27");
    editHeader(1, [](User& user) {
        EXPECT_NE(user.control<ui::TextBox>("txtLieferBis").warning(), "") << "seen as soon as it is opened";
        user.type("txtLieferBis", "");
        user.click("btnOk");
    });
    editHeader(1, [](User& user) {
        EXPECT_EQ(user.control<ui::TextBox>("txtLieferBis").warning(), "") << "nothing of the last visit";
        user.click("btnCancel");
    });
}

TEST_F(ContractHeader, ANumberIsWrittenAsItWasReadUnlessTheUserTouchedIt) {
    struct Case {
        const char* rule;
        std::function<void(User&)> act;
        const char* written;
    };
    const Case cases[] = {
        {"looked at", [](User& user) { user.key(Key::tab); }, "98.4567"},
        {"typed as it is shown", [](User& user) { user.type("98,46"); }, "98.4600"},
        {"emptied", [](User& user) { user.key(Key::del); }, "NULL"},
    };
    for (const Case& c : cases) {
        host.database.execute("UPDATE VERTRAEGE SET NUMM1 = 98.4567 WHERE ID_VERTRAG = 1");
        editHeader(1, [&](User& user) {
            EXPECT_EQ(user.text("txtNumber(0)"), "98,46");
            user.focus("txtNumber(0)");
            c.act(user);
            user.click("btnOk");
        });
        EXPECT_EQ(value("SELECT NUMM1 FROM VERTRAEGE WHERE ID_VERTRAG = 1"), c.written) << c.rule;
    }
}

TEST_F(ContractHeader, ALookupThatFailedIsStoredWhenItHasBeenPutRight) {
    struct Case {
        const char* box;
        const char* wrong;
        const char* column;
        const char* fails; ///< the statement that fails besides
    };
    const Case cases[] = {
        {"txtRechn", "xyz", "RART_ID", ""},
        {"txtRechn", "xyz", "RART_ID", "FROM RECHNUNGSART WHERE"},
        {"txtRechn", "x'z", "RART_ID", ""},
        {"txtBuchn", "xyz", "BUCHNR_ID", ""},
        {"txtMandant(0)", "999", "ID_MANDANTEN", ""},
        {"txtLieferadresse(0)", "999", "ID_PERSONAL_LIEFERADRESSE", ""},
        {"txtLieferadresse(0)", "999", "ID_PERSONAL_LIEFERADRESSE", "FROM PERSONAL WHERE"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string{c.box} + " " + c.wrong + " " + c.fails);
        const std::string stored = std::string{"SELECT "} + c.column + " FROM VERTRAEGE WHERE ID_VERTRAG = 1";
        const std::string before = value(stored);
        ASSERT_NE(before, "NULL");
        editHeader(1, [&](User& user) {
            const std::string right = user.text(c.box);
            host.database.failOn(c.fails);
            user.type(c.box, c.wrong);
            user.key(Key::tab);
            EXPECT_EQ(user.focused(), c.box);
            EXPECT_EQ(user.tag(c.box), "") << "no text stands with the key of another one";
            host.database.failOn("");
            user.type(c.box, right);
            user.click("btnOk");
        });
        EXPECT_EQ(value(stored), before);
    }
}

TEST_F(ContractHeader, AFreeTextIsAsLongAsItsColumn) {
    host.columnWidths["VERTRAEGE.KOPF2"] = 5;
    editHeader(1, [](User& user) {
        user.type("txtKopf(1)", "Länge 4");
        EXPECT_EQ(user.text("txtKopf(1)"), "Länge");
        user.type("txtKopf(2)", "ohne Grenze");
        EXPECT_EQ(user.text("txtKopf(2)"), "ohne Grenze");
        user.click("btnCancel");
    });
}

TEST_F(ContractHeader, LookupsResolveToKeysAndUnresolvedOnesKeepTheFocus) {
    editHeader(3, [&](User& user) {
        user.type("txtBuchn", "gibt es nicht");
        user.click("btnOk");
        EXPECT_EQ(user.focused(), "txtBuchn");
        EXPECT_EQ(user.text("txtBuchn"), "gibt es nicht");
        host.pickedText = value("SELECT BUCHUNGSTEXT FROM BUCHNR WHERE BUCHNR_ID = 2");
        user.ctrl();
        EXPECT_EQ(host.picks.back(), "SELECT BUCHUNGSTEXT AS SHORT FROM BUCHNR/Text 294");
        user.click("btnOk");
    });
    EXPECT_EQ(value("SELECT BUCHNR_ID FROM VERTRAEGE WHERE ID_VERTRAG = 3"), "2");
}

TEST_F(ContractHeader, PersonsAreTypedByNumberOrPicked) {
    const auto number = value("SELECT NUMMER FROM PERSONAL WHERE ID_PERSONAL = 2");
    editHeader(1, [&](User& user) {
        user.type("txtMandant(0)", "1x" + number.substr(1));
        EXPECT_EQ(user.text("txtMandant(0)"), "1" + number.substr(1)) << "digits only";
        user.type("txtMandant(0)", number);
        user.key(Key::tab);
        EXPECT_EQ(user.tag("txtMandant(0)"), "2");
        EXPECT_EQ(user.text("txtMandant(1)"),
                  value("SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = 2"));
        host.pickedPerson = 52;
        user.focus("txtLieferadresse(0)");
        user.key(Key::f4);
        EXPECT_EQ(host.picks.back(), "2PVAP/2") << "a contract without a level uses the user's";
        user.click("btnOk");
    });
    EXPECT_EQ(row("SELECT ID_MANDANTEN,ID_PERSONAL_LIEFERADRESSE FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
              "2 | 52");
}

TEST_F(ContractHeader, PickersOpenWithTheirTitles) {
    struct Case {
        const char* box;
        const char* pick;
    };
    const Case cases[] = {
        {"txtDate1", "DATUM/Vertragsdatum*"},
        {"txtDate3", "DATUM/Text 3025"},
        {"txtLieferBis", "DATUM/Lieferzeitraum bis"},
        {"txtWahrung", "SELECT 'EUR' AS SHORT UNION ALL SELECT 'CHF'/Text 748"},
        {"txtRechn", "SELECT RECHNUNGSART AS SHORT FROM RECHNUNGSART/Text 293"},
    };
    editHeader(6, [&](User& user) {
        for (const Case& c : cases) {
            const std::string before = user.text(c.box);
            user.focus(c.box);
            user.ctrl();
            EXPECT_EQ(host.picks.back(), c.pick);
            EXPECT_EQ(user.text(c.box), before) << "cancelling changes nothing";
        }
        host.pickedPerson = 0;
        user.focus("txtMandant(0)");
        user.ctrl();
        EXPECT_EQ(host.picks.back(), "2PVM/5") << "a contract's own access level comes first";
        EXPECT_EQ(user.tag("txtMandant(0)"), "2") << "nobody chosen: the client stays";
        user.click("btnCancel");
    });
}

TEST_F(ContractHeader, AFailingSaveLeavesTheScreenWithEverythingTyped) {
    editHeader(1, [&](User& user) {
        user.type("txtKopf(0)", "neu");
        host.database.failOn("UPDATE VERTRAEGE SET INVDATE");
        user.click("btnOk");
        EXPECT_EQ(host.display.errors(), std::vector<std::string>{"connection lost"});
        EXPECT_EQ(user.text("txtKopf(0)"), "neu");
        host.database.failOn("");
        user.click("btnOk");
    });
    EXPECT_EQ(value("SELECT KOPF1 FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "neu");
}

TEST_F(ContractHeader, AContractThatAColleagueDeletedKeepsTheScreenWithEverythingTyped) {
    host.display.onWindow("F_Vertrag", [](User& user) {
        user.click("btnHeader");
        user.click("btnAbbrechen");
    });
    host.display.onWindow("F_HeaderVertrag", [&](User& user) {
        user.type("txtKopf(0)", "neu");
        host.database.execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 1");
        user.click("btnOk");
        ASSERT_EQ(host.display.errors().size(), 1u);
        EXPECT_NE(host.display.errors().back().find("inzwischen gelöscht"), std::string::npos);
        EXPECT_EQ(user.text("txtKopf(0)"), "neu");
        user.click("btnCancel");
    });
    host.openContract(1);
}

TEST_F(ContractHeader, SavingIsOneStatementInTheGivenOrderBehindOneRead) {
    editHeader(
        14,
        [&](User& user) {
            host.statements.clear();
            user.click("btnOk");
        },
        "A7");
    ASSERT_GE(host.statements.size(), 2U);
    EXPECT_TRUE(host.statements[0].starts_with("SELECT VERTRAEGE.INVDATE,"))
        << "what a colleague has changed";
    EXPECT_EQ(
        host.statements[1],
        "UPDATE VERTRAEGE SET INVDATE = '20240110',DATE1 = NULL,DATE2 = NULL,DATE3 = NULL,LIEFERVON = "
        "'20240115',LIEFERBIS = '20241215',NUMM1 = NULL,NUMM2 = NULL,NUMM3 = NULL,NUMM4 = NULL,NUMM5 = NULL,NUMM6 "
        "= NULL,NUMM7 = NULL,NUMM8 = NULL,NUMM9 = NULL,NUMM10 = NULL,KOPF1 = NULL,KOPF2 = NULL,KOPF3 = NULL,KOPF4 "
        "= NULL,KOPF5 = NULL,KOPF6 = NULL,KOPF7 = NULL,KOPF8 = NULL,KOPF9 = NULL,KOPF10 = NULL,RART_ID = "
        "NULL,BUCHNR_ID = 4,ID_MANDANTEN = 1,ID_PERSONAL_LIEFERADRESSE = NULL,EURO = 1 WHERE ID_VERTRAG = 14");
}

} // namespace
} // namespace tellurix::tests
