#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;

class TakingLinesOver : public ContractTest {
protected:
    void edit(std::int32_t contract, const ScriptedDisplay::Script& script, const std::string& type = "R") {
        host.display.onWindow("F_Vertrag", [&](User& user) {
            script(user);
            user.click("btnAbbrechen");
        });
        host.openContract(contract, type);
    }
    std::string lineCounts(int contract) {
        const std::string of = " WHERE ID_VERTRAG = " + std::to_string(contract);
        return value("SELECT COUNT(*) FROM VERTRAG_MENGEN" + of) + "+" +
               value("SELECT COUNT(*) FROM VERTRAG_PREISE" + of);
    }
};

TEST_F(TakingLinesOver, AppendsCopiesBehindTheLinesThatAreThere) {
    edit(1, [&](User& user) {
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        user.click("btnUbernehmen");
        EXPECT_EQ(user.status(), "2 Preise und 2 Mengen übernommen – schon gespeichert, „Abbrechen“ nimmt es "
                                 "nicht zurück");
        EXPECT_EQ(user.grid("Grid1").rows().size(), 5u) << "the overviews show them at once";
        EXPECT_EQ(user.grid("Grid2").cell(4, 1), "Faserholz übrige Baumarten");
        EXPECT_FALSE(user.usable("ProgressBar1"));
    });
    EXPECT_EQ(lineCounts(1), "5+5");
    EXPECT_EQ(lineCounts(3), "2+2");
    EXPECT_EQ(
        row("SELECT BEZEICHNUNG,SELEKTION_VALUE,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2 FROM VERTRAG_PREISE "
            "WHERE ID_VERTRAG = 1 AND ORDNUNG = 4"),
        "Faserholz Nadel | 83 IN ('FI', 'KI') ;87 IN ('F') ; | 112.4000 | true | 4 | 109.9000");
    EXPECT_EQ(row("SELECT BEZEICHNUNG,SELEKTION_VALUE,MENGE,ID_WARENEINHEIT FROM VERTRAG_MENGEN "
                  "WHERE ID_VERTRAG = 1 AND ORDNUNG = 5"),
              "Faserholz übrige Baumarten | 83 NOT IN ('FI', 'KI') ; | 300.000 | 5");
}

TEST_F(TakingLinesOver, EveryFieldIsCopiedInTheOrderOfThePlaces) {
    host.display.onMessage("hat die Vertragsart A6", Answer::yes);
    edit(17, [&](User& user) {
        user.type("txtVertrag", "A6-2024-001 Stockkauf Obdach");
        user.click("btnUbernehmen");
    });
    for (const char* line : {"PREISE", "MENGEN"}) {
        const std::string columns =
            line == std::string{"PREISE"}
                ? "BEZEICHNUNG,SELEKTION_VALUE,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2 FROM VERTRAG_PREISE"
                : "BEZEICHNUNG,SELEKTION_VALUE,MENGE,ID_WARENEINHEIT FROM VERTRAG_MENGEN";
        for (const char* place : {"1", "2", "3"}) {
            const std::string query =
                "SELECT " + columns + " WHERE ORDNUNG = " + place + " AND ID_VERTRAG = ";
            EXPECT_EQ(row(query + "17"), row(query + "18"));
        }
    }
}

TEST_F(TakingLinesOver, WhatCannotBeASourceIsRefusedWithTheReason) {
    struct Case {
        const char* rule;
        const char* type;
        const char* name;
        const char* message;
        bool limits = true; // whether the host's lists know them
    };
    const char* own = "R-2025-001 Fichte Wolfsberg";
    const Case cases[] = {
        {"none given", "", "", "Text 223"},
        {"an unknown one", "", "gibt es nicht", "Den Vertrag „gibt es nicht“ gibt es nicht."},
        {"a piece of a statement", "", "x' OR '1'='1", "Den Vertrag „x' OR '1'='1“ gibt es nicht."},
        {"the contract itself", "", own, "nicht aus sich selbst"},
        {"the contract itself, where a list offers it", "", own, "nicht aus sich selbst", false},
        {"one of another type than was chosen", "A1", "R-2025-003 Faserholz Judenburg", "gibt es nicht."},
        {"the same, where a list offers it", "A1", "R-2025-003 Faserholz Judenburg", "gibt es nicht.", false},
        {"a contract without lines", "", "A1-2026-001 Einkauf Mariahof", "keine Preise und keine Mengen"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.listsKnowLimits = c.limits;
        host.display.onMessage(c.message);
        edit(1, [&](User& user) {
            user.type("txtTypeOfVertrag", c.type);
            user.type("txtVertrag", c.name);
            user.click("btnUbernehmen");
            EXPECT_EQ(user.focused(), "txtVertrag");
            EXPECT_EQ(host.display.messages().back().flags, ui::box::exclamation);
        });
    }
    EXPECT_TRUE(host.display.errors().empty());
    EXPECT_EQ(lineCounts(1), "3+3");
}

TEST_F(TakingLinesOver, ANameThatWasWrongIsLookedUpAgain) {
    host.display.onMessage("Den Vertrag „x“ gibt es nicht.");
    edit(1, [&](User& user) {
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        user.focus("txtTypeOfVertrag");
        user.type("txtVertrag", "x");
        user.key(ui::Key::tab);
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        user.click("btnUbernehmen");
    });
    EXPECT_EQ(lineCounts(1), "5+5");
}

TEST_F(TakingLinesOver, AKeyThatNoContractCanHaveIsRefused) {
    // The first is contract 2 when only 32 bits of it are looked at; the second does not fit 64.
    for (const char* key : {"4294967298", "99999999999999999999", "2;"}) {
        SCOPED_TRACE(key);
        host.foundKeys = {key};
        host.display.onMessage("Den Vertrag „R-2025-003 Faserholz Judenburg“ gibt es nicht.");
        edit(1, [&](User& user) {
            user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
            user.click("btnUbernehmen");
            EXPECT_EQ(user.focused(), "txtVertrag");
        });
    }
    EXPECT_TRUE(host.display.errors().empty());
    EXPECT_EQ(lineCounts(1), "3+3");
}

TEST_F(TakingLinesOver, AnotherContractTypeIsAskedFor) {
    for (const Answer answer : {Answer::no, Answer::yes}) {
        host.display.onMessage("hat die Vertragsart A1, dieser Vertrag die Vertragsart R", answer);
        edit(1, [&](User& user) {
            host.pickedKey = "A1";
            user.focus("txtTypeOfVertrag");
            user.ctrl();
            host.pickedKey = value("SELECT ID_VERTRAG FROM VERTRAEGE WHERE VERTRAG_NAME = "
                                   "'A1-2025-001 Einkauf Breitenau'");
            user.focus("txtVertrag");
            user.ctrl();
            EXPECT_EQ(user.text("txtVertrag"), "A1-2025-001 Einkauf Breitenau");
            user.click("btnUbernehmen");
        });
        EXPECT_EQ(lineCounts(1), answer == Answer::yes ? "5+4" : "3+3");
    }
    EXPECT_EQ(host.display.messages().front().flags, ui::box::yesNo + ui::box::question);
    EXPECT_EQ(host.lists,
              (std::vector<std::string>{"TYPEOFVERTRAG_GRID/Vertragsart//1", "TYPEOFVERTRAG_VALID/A1//1",
                                        "VERTRAG_GRID/Vertrag/A1/1", "TYPEOFVERTRAG_GRID/Vertragsart//1",
                                        "TYPEOFVERTRAG_VALID/A1//1", "VERTRAG_GRID/Vertrag/A1/1"}))
        << "the keys, the chosen type and the contract itself";
}

TEST_F(TakingLinesOver, OfContractsWithTheSameNameTheUserSaysWhich) {
    host.contracts = {2, 3};
    host.database.execute("UPDATE VERTRAEGE SET VERTRAG_NAME = 'Doppelt' WHERE ID_VERTRAG IN (1,2,3)");
    edit(1, [&](User& user) {
        host.pickedText = "";
        user.type("txtVertrag", "Doppelt");
        user.click("btnUbernehmen");
        EXPECT_EQ(user.focused(), "txtVertrag") << "not said";
        EXPECT_NE(host.picks.back().find("IN (2,3)/Welcher Vertrag „Doppelt“?"), std::string::npos)
            << host.picks.back();
        host.pickedText = "3";
        user.click("btnUbernehmen");
    });
    EXPECT_EQ(lineCounts(1), "5+5");
}

TEST_F(TakingLinesOver, ASecondPressTakesNothingOver) {
    host.display.onMessage("Text 223");
    edit(1, [&](User& user) {
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        user.click("btnUbernehmen");
        EXPECT_EQ(user.text("txtVertrag"), "");
        user.click("btnUbernehmen");
    });
    EXPECT_EQ(lineCounts(1), "5+5");
}

TEST_F(TakingLinesOver, IntoAContractThatAColleagueDeletedNothingIsWritten) {
    edit(1, [&](User& user) {
        user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
        host.database.execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 1");
        user.click("btnUbernehmen");
        ASSERT_EQ(host.display.errors().size(), 1u);
        EXPECT_NE(host.display.errors().back().find("inzwischen gelöscht"), std::string::npos);
    });
    EXPECT_EQ(lineCounts(1), "3+3");
}

TEST_F(TakingLinesOver, AFailureInTheMiddleSaysHowFarItGot) {
    edit(2, [&](User& user) {
        user.type("txtVertrag", "R-2025-001 Fichte Wolfsberg");
        host.database.failOn("Kiefer Langholz");
        user.click("btnUbernehmen");
        host.database.failOn("");
        ASSERT_EQ(host.display.errors().size(), 1u);
        EXPECT_NE(host.display.errors().back().find("Es wurden nur 5 von 6 Zeilen übernommen."),
                  std::string::npos)
            << host.display.errors().back();
        EXPECT_EQ(user.grid("Grid1").rows().size(), 4u);
    });
    EXPECT_EQ(lineCounts(2), "4+4");
}

TEST_F(TakingLinesOver, TheOverviewFollowsTheLineScreens) {
    host.display.onWindow("F_Vertrag", [&](User& user) {
        user.click("PreisButton");
        EXPECT_EQ(user.grid("Grid1").rows().size(), 2u);
        user.click("PosButton");
        EXPECT_EQ(user.grid("Grid2").rows().size(), 3u) << "looking changes nothing";
        user.click("btnAbbrechen");
        EXPECT_FALSE(host::moduleState().screens.contains("F_VertragPreise")) << "released on closing";
        EXPECT_FALSE(host::moduleState().screens.contains("F_VertragMengen"));
    });
    host.display.onWindow("F_VertragPreise", [&](User& user) {
        user.click("cmdLoschen");
        user.click("cmdOk");
    });
    host.display.onWindow("F_VertragMengen", [&](User& user) { user.close(); });
    host.openContract(1);
}

} // namespace
} // namespace tellurix::tests
