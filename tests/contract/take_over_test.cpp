#include "support/ContractTest.h"

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

TEST_F(TakingLinesOver, WhatCannotBeASourceIsRefusedWithTheReason) {
    struct Case {
        const char* rule;
        const char* name;
        const char* message;
    };
    const Case cases[] = {
        {"none given", "", "Text 223"},
        {"the contract itself", "R-2025-001 Fichte Wolfsberg", "nicht aus sich selbst"},
        {"a contract without lines", "A1-2026-001 Einkauf Mariahof", "keine Preise und keine Mengen"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.display.onMessage(c.message);
        edit(1, [&](User& user) {
            user.type("txtVertrag", c.name);
            user.click("btnUbernehmen");
            EXPECT_EQ(user.focused(), "txtVertrag");
            EXPECT_EQ(host.display.messages().back().flags, ui::box::exclamation);
            user.type("txtVertrag", "");
        });
    }
    edit(1, [&](User& user) {
        user.type("txtVertrag", "gibt es nicht");
        user.click("btnUbernehmen");
        EXPECT_EQ(user.focused(), "txtVertrag") << "the lookup refuses an unknown contract";
        user.type("txtVertrag", "x' OR '1'='1");
        user.click("btnUbernehmen");
        EXPECT_EQ(host.display.errors().size(), 1u) << "and a statement fragment";
        user.type("txtVertrag", "");
    });
    EXPECT_EQ(lineCounts(1), "3+3");
}

TEST_F(TakingLinesOver, AKeyThatNoContractCanHaveIsRefused) {
    // The first is contract 2 when only 32 bits of it are looked at; the second does not fit 64.
    for (const char* key : {"4294967298", "99999999999999999999", "2;"}) {
        SCOPED_TRACE(key);
        host.display.onMessage("Den Vertrag „R-2025-003 Faserholz Judenburg“ gibt es nicht.");
        edit(1, [&](User& user) {
            user.type("txtVertrag", "R-2025-003 Faserholz Judenburg");
            user.focus("btnUbernehmen");
            user.control<ui::TextBox>("txtVertrag").setTag(key); // what the host's lookup answered
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
            host.pickedText = "A1";
            user.focus("txtTypeOfVertrag");
            user.ctrl();
            host.pickedText = "A1-2025-001 Einkauf Breitenau";
            user.focus("txtVertrag");
            user.ctrl();
            EXPECT_EQ(host.picks.back(),
                      "SELECT VERTRAG_NAME AS SHORT FROM VERTRAEGE WHERE VER_TYPE = 'A1'/Vertrag");
            user.click("btnUbernehmen");
        });
        EXPECT_EQ(lineCounts(1), answer == Answer::yes ? "5+4" : "3+3");
    }
    EXPECT_EQ(host.display.messages().front().flags, ui::box::yesNo + ui::box::question);
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
