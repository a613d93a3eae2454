#include "tests/deductions/DeductionsTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;

class SavingDeductions : public DeductionsTest {};

TEST_F(SavingDeductions, OpeningReadsInTheGivenOrder) {
    edit(1, [&](User& user) {
        const std::string key = " WHERE RECH_NAME = 'R-2025-001 Fichte Wolfsberg' AND VER_TYPE = 'V'";
        std::vector<std::string> expected{"SELECT ABS_MODEL FROM ABSCHLAG" + key};
        for (int line = 0; line < 16; ++line)
            expected.push_back("SELECT * FROM STATISTIK WHERE TEXT IS NOT NULL ORDER BY STATISTIK_ID");
        expected.push_back("SELECT * FROM ABSCHLAG" + key);
        EXPECT_EQ(host.statements, expected);
        EXPECT_EQ(host.modelCalls, std::vector<std::string>{"fill/ABSCHLAG"});
        EXPECT_EQ(line(user, 0), "Rindenabzug|Rindenabzug Fichte|-10,00||*");
        EXPECT_EQ(line(user, 1), "Güteabschlag|Käferholzabschlag|-25,75|1|*");
        EXPECT_EQ(line(user, 2), "Skonto|Skonto|-2,00|1,2|");
        EXPECT_EQ(line(user, 3), "||||") << "no line";
        EXPECT_EQ(line(user, 15), "||||");
        EXPECT_EQ(user.control<ui::ComboBox>("CmbModel").selectedText(), "Sägewerk Standard")
            << "a model that is no longer kept";
        EXPECT_TRUE(user.control<ui::Label>("Label1(0)").highlighted()) << "it has an article";
        EXPECT_FALSE(user.control<ui::Label>("Label1(2)").highlighted());
        EXPECT_EQ(user.caption("Label1(15)"), "16");
        EXPECT_FALSE(user.control<ui::Button>("Command1(2)").quiet());
        EXPECT_TRUE(user.control<ui::Button>("Command1(3)").quiet());
        user.focus("TextBez(4)");
        EXPECT_FALSE(user.control<ui::Button>("Command1(4)").quiet()) << "reached";
        user.close();
    });
}

TEST_F(SavingDeductions, WritesEveryLineAnewInTheGivenOrder) {
    const std::string name = "R-2025-002 Lärche Villach";
    const std::string model = edit(2, [&](User& user) {
        enter(user, 0, 3, "-12,5", "Güteabschlag für Käferholz");
        enter(user, 1, 13, "2");
        user.type("txtWert(1)", "1,");
        host.onSelectionEdit = [](const std::string&) { return " 90 IN ('CX') ; "; };
        user.click("Command2(0)");
        user.click("Command2(1)");
        EXPECT_TRUE(user.checked("Check1(1)"));
        const auto before = host.statements.size();
        user.click("btnOk");
        const std::string ofContract = "WHERE RECH_NAME  = 'R-2025-002 Lärche Villach' AND VER_TYPE = 'V'";
        const std::string at0 = ofContract + " AND LINE_NUM = 0";
        const std::string at1 = ofContract + " AND LINE_NUM = 1";
        const std::string read = "SELECT SUBSET_DEF FROM ABSCHLAG WHERE RECH_NAME = '" + name +
                                 "' AND VER_TYPE = 'V' AND LINE_NUM = ";
        const auto inserted = [](int line) {
            return "INSERT INTO ABSCHLAG (RECH_NAME,LINE_NUM,VER_TYPE) VALUES ( 'R-2025-002 Lärche Villach' , " +
                   std::to_string(line) + " , 'V' )";
        };
        const std::vector<std::string> expected{
            // What a colleague has saved meanwhile.
            "SELECT * FROM ABSCHLAG WHERE RECH_NAME = 'R-2025-002 Lärche Villach' AND VER_TYPE = 'V'",
            "DELETE FROM ABSCHLAG WHERE RECH_NAME = 'R-2025-002 Lärche Villach' AND VER_TYPE = 'V'",
            inserted(0),
            "UPDATE ABSCHLAG SET STATISTIK = '3' " + at0,
            "UPDATE ABSCHLAG SET BEZEICH = 'Güteabschlag für Käferholz' " + at0,
            "UPDATE ABSCHLAG SET WERT_TEXT = '-12,50' " + at0,
            "UPDATE ABSCHLAG SET WERT_LINE = NULL " + at0,
            "UPDATE ABSCHLAG SET ART_ID = NULL " + at0,
            "UPDATE ABSCHLAG SET SUBSET_DEF = '90 IN (''CX'') ;' " + at0,
            inserted(1),
            "UPDATE ABSCHLAG SET STATISTIK = '13' " + at1,
            "UPDATE ABSCHLAG SET BEZEICH = NULL  " + at1,
            "UPDATE ABSCHLAG SET WERT_TEXT = '2,00' " + at1,
            "UPDATE ABSCHLAG SET WERT_LINE = '1' " + at1,
            "UPDATE ABSCHLAG SET ART_ID = NULL " + at1,
            "UPDATE ABSCHLAG SET SUBSET_DEF = NULL " + at1, // position 13 carries none
            "UPDATE ABSCHLAG SET ABS_MODEL = NULL  " + ofContract,
            read + "0",
            read + "1",
        };
        EXPECT_EQ(sentFrom(before), expected);
    });
    EXPECT_EQ(model, "");
    EXPECT_TRUE(host::isTrue(host::moduleState().context.blnOK));
    EXPECT_EQ(stored(name, "LINE_NUM,STATISTIK,BEZEICH,WERT_TEXT,WERT_LINE,SUBSET_DEF,ART_ID"),
              "[0 | 3 | Güteabschlag für Käferholz | -12,50 | NULL | 90 IN ('CX') ; | NULL]"
              "[1 | 13 | NULL | 2,00 | 1 | NULL | NULL]");
}

TEST_F(SavingDeductions, RefusesLinesThatAreNoBlock) {
    struct Entry {
        std::size_t line;
        int statistic; ///< -1: none is chosen
        const char* value;
        const char* designation = "";
    };
    struct Case {
        const char* rule;
        std::vector<Entry> lines;
        const char* wrong; ///< where the focus goes; null: everything is saved
    };
    const Case cases[] = {
        {"nothing at all", {}, nullptr},
        {"the first line", {{0, 5, "1"}}, nullptr},
        {"no designation", {{0, 5, "1"}, {1, 6, "2"}}, nullptr},
        {"a value of zero is a value", {{0, 5, "0"}}, nullptr},
        {"a gap", {{0, 5, "1"}, {2, 6, "2"}}, "CmbStat(1)"},
        {"the first line empty", {{1, 5, "1"}}, "CmbStat(0)"},
        {"the last line alone", {{15, 5, "1"}}, "CmbStat(0)"},
        {"a gap with a zero", {{0, 5, "1"}, {1, -1, "0"}, {2, 6, "2"}}, "CmbStat(1)"},
        {"a value without statistic", {{0, -1, "5"}}, "CmbStat(0)"},
        {"a zero without statistic is no line", {{0, 5, "1"}, {1, -1, "0"}}, nullptr},
        {"the empty statistic with a value", {{0, 0, "5"}}, "CmbStat(0)"},
        {"a designation alone", {{0, 5, "1"}, {1, -1, "", "Rest"}}, "CmbStat(1)"},
        {"the first of several", {{0, 5, "1"}, {3, -1, "5"}, {5, -1, "6"}}, "CmbStat(3)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        if (c.wrong != nullptr) host.display.onMessage("Text 223");
        edit(7, [&](User& user) {
            for (const Entry& entry : c.lines) {
                if (entry.statistic >= 0) user.select(at("CmbStat", entry.line), entry.statistic);
                user.replaceText(at("TextWert", entry.line), entry.value);
                user.type(at("TextBez", entry.line), entry.designation);
            }
            const auto before = host.statements.size();
            user.click("btnOk");
            if (c.wrong == nullptr) return;
            EXPECT_EQ(user.focused(), c.wrong);
            EXPECT_EQ(user.error(c.wrong), "In dieser Zeile fehlt die Statistik.");
            EXPECT_EQ(sentFrom(before), std::vector<std::string>{}) << "nothing is written";
            user.click("btnModels");
            EXPECT_EQ(host.modelCalls.back(), "fill/ABSCHLAG") << "no management of models either";
            user.click("btnAbbrechen");
        });
        host.database.execute("DELETE FROM ABSCHLAG WHERE RECH_NAME = 'R-2026-002 Vorvertrag Nadelholz'");
    }
}

TEST_F(SavingDeductions, WhatIsStoredWrongIsShownAndNotSavedAgain) {
    host.display.onMessage("Text 223");
    edit(6, [&](User& user) {
        EXPECT_EQ(line(user, 0),
                  "Zuschlag zertifiziert|Zuschlag für zertifiziertes Rundholz, Reviere Nord|1,50||")
            << "stored with a point";
        EXPECT_EQ(line(user, 1), "Güteabschlag|Güteabschlag||1|*") << "NULL as value";
        EXPECT_EQ(line(user, 2), "|Abzug ohne Statistik|-5,00|1,3|");
        EXPECT_EQ(line(user, 15), "Rundung|Rundung|0,01|1|");
        user.click("btnOk");
        EXPECT_EQ(user.focused(), "TextWert(1)");
        EXPECT_EQ(user.error("TextWert(1)"), "In dieser Zeile fehlt der Wert.");
        EXPECT_EQ(user.control<ui::Label>("Label1(1)").warning(), "In dieser Zeile fehlt der Wert.");
        user.type("-3");
        EXPECT_EQ(user.control<ui::Label>("Label1(1)").warning(), "") << "the mark goes with the next change";
        user.click("btnAbbrechen");
    });
    EXPECT_EQ(stored("R-2026-001 Stangen Passau", "LINE_NUM"), "[0][1][2][15]");
}

TEST_F(SavingDeductions, AFailureInBetweenCanBePutRight) {
    for (const bool repaired : {true, false}) {
        SCOPED_TRACE(repaired);
        const std::string before = stored(spruce, "*");
        if (!repaired) host.display.onMessage("nur 1 von 3 Zeilen", Answer::no);
        if (!repaired) host.display.onMessage("nur 1 von 3 Zeilen", Answer::yes);
        const std::string model = edit(1, [&](User& user) {
            user.type("TextBez(1)", "Neu");
            host.database.failOn("WERT_TEXT = '-25,75'");
            const auto errors = host.display.errors().size();
            user.click("btnOk");
            ASSERT_EQ(host.display.errors().size(), errors + 2);
            EXPECT_EQ(host.display.errors()[errors], "connection lost");
            EXPECT_NE(host.display.errors().back().find("1 von 3 Zeilen"), std::string::npos);
            EXPECT_EQ(line(user, 1), "Güteabschlag|Neu|-25,75|1|*") << "everything typed is still there";
            EXPECT_EQ(stored(spruce, "WERT_TEXT"), "[-10,00][NULL]");
            host.database.failOn("");
            if (repaired) {
                user.click("btnOk");
            } else {
                user.click("btnAbbrechen"); // answered with No
                user.close();
            }
        });
        EXPECT_EQ(model, "Sägewerk Standard");
        if (!repaired) continue;
        EXPECT_EQ(stored(spruce, "BEZEICH,WERT_TEXT,ABS_MODEL"),
                  "[Rindenabzug Fichte | -10,00 | Sägewerk Standard][Neu | -25,75 | Sägewerk Standard]"
                  "[Skonto | -2,00 | Sägewerk Standard]");
    }
}

TEST_F(SavingDeductions, TextsThatNoStatementCanCarryAreRefusedBeforeAnythingIsDeleted) {
    struct Case {
        const char* control;
        const char* typed;
        const char* label;
    };
    const Case cases[] = {
        {"TextBez(1)", "Müller's Abzug", "Bezeichnung"},
        {"TextBez(2)", "x', ART_ID = '1", "Bezeichnung"},
        {"TextWert(0)", "1'", "Wert"},
        {"txtWert(1)", "1'; DELETE FROM ABSCHLAG --", "Bezugszeile(n)"},
    };
    const std::string before = stored(spruce, "*");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        edit(1, [&](User& user) {
            user.replaceText(c.control, c.typed);
            const auto sent = host.statements.size();
            user.click("btnOk");
            EXPECT_EQ(host.display.errors().back().find(std::string{c.label} + " „" + c.typed + "“: "), 0U)
                << host.display.errors().back();
            EXPECT_EQ(user.focused(), c.control);
            EXPECT_EQ(sentFrom(sent), std::vector<std::string>{});
            user.click("btnAbbrechen");
        });
    }
    host.models = {"D'Angelo"};
    edit(1, [&](User& user) {
        user.select("CmbModel", 0);
        user.select("CmbStat(0)", 1);
        user.click("btnOk");
        EXPECT_EQ(user.focused(), "CmbModel");
        EXPECT_EQ(host.display.errors().back().find("Modell „D'Angelo“: "), 0U);
        user.click("btnAbbrechen");
    });
    EXPECT_EQ(stored(spruce, "*"), before);
}

TEST_F(SavingDeductions, ClosingAsksWhenSomethingWasEntered) {
    struct Case {
        const char* rule;
        std::function<void(User&)> does;
        bool asks;
    };
    const Case cases[] = {
        {"nothing", [](User&) {}, false},
        {"only gone through",
         [](User& user) {
             user.focus("TextWert(5)");
             user.focus("TextBez(5)");
         },
         false},
        {"typed the same again", [](User& user) { user.type("TextBez(0)", "Rindenabzug Fichte"); }, true},
        {"a statistic", [](User& user) { user.select("CmbStat(4)", 2); }, true},
        {"a subset removed", [](User& user) { user.click("Check1(0)"); }, true},
        {"a model", [](User& user) { user.select("CmbModel", 1); }, true},
    };
    const std::string before = stored(spruce, "*");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        if (c.asks) host.display.onMessage("noch nicht gespeichert", Answer::no);
        if (c.asks) host.display.onMessage("noch nicht gespeichert", Answer::yes);
        const std::string model = edit(1, [&](User& user) {
            c.does(user);
            user.close();
            if (c.asks) user.close();
        });
        edit(1, [&](User& user) {
            c.does(user);
            user.click("btnAbbrechen"); // never asks
        });
        EXPECT_EQ(model, "Sägewerk Standard");
        EXPECT_EQ(stored(spruce, "*"), before);
        EXPECT_FALSE(host::isTrue(host::moduleState().context.blnOK));
    }
}

TEST_F(SavingDeductions, LinesBelongToTheNameInAnyCaseAndToTheType) {
    host.database.execute(
        "UPDATE VERTRAEGE SET VERTRAG_NAME = 'r-2025-001 FICHTE wolfsberg' WHERE ID_VERTRAG = 2");
    edit(2, [&](User& user) {
        EXPECT_EQ(line(user, 2), "Skonto|Skonto|-2,00|1,2|") << "shared with the contract of that name";
        user.click("btnAbbrechen");
    });
    edit(
        1,
        [&](User& user) {
            EXPECT_EQ(line(user, 0), "||||") << "another type";
            user.click("btnAbbrechen");
        },
        "A1");
    EXPECT_EQ(edit(
                  8, [](User& user) { user.click("btnOk"); }, "a1"),
              "Einkauf Kleinwald");
    EXPECT_EQ(stored("A1-2025-001 Einkauf Breitenau", "WERT_TEXT,ABS_MODEL", "V1"),
              "[-0,40 | Einkauf Kleinwald][-1,20 | Einkauf Kleinwald]");
}

TEST_F(SavingDeductions, AContractNameWithAnApostropheIsAnsweredWithTheNote) {
    host.database.execute("UPDATE VERTRAEGE SET VERTRAG_NAME = 'D''Angelo' WHERE ID_VERTRAG = 1");
    host.display.onWindow("F_Vertrag", [&](User& user) {
        host.statements.clear();
        user.click("btnAbschlag");
        EXPECT_EQ(host.display.errors().back().find("Das Abschlagsmodell kann nicht gelesen werden"), 0U);
        EXPECT_EQ(host.statements, std::vector<std::string>{});
        user.click("btnAbbrechen");
    });
    host.openContract(1);
}

} // namespace
} // namespace tellurix::tests
