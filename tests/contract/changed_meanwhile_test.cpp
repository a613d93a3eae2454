#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

/// Two work on the same contract: the one whose screens these are, and a colleague.
class ChangedMeanwhile : public ContractTest {
protected:
    void colleague(const std::string& assignments) {
        host.database.execute("UPDATE VERTRAEGE SET " + assignments + " WHERE ID_VERTRAG = 1");
    }
    /// Opens the head data, works on them by a script, and goes back.
    void editHeader(const ScriptedDisplay::Script& script) {
        host.display.onWindow("F_Vertrag", [this](User& user) {
            user.click("btnHeader");
            status_ = user.status();
            user.click("btnAbbrechen");
        });
        host.display.onWindow("F_HeaderVertrag", script);
        host.openContract(1);
    }
    /// What the editor says when the head data are closed.
    const std::string& status() const { return status_; }
    int updates() {
        int count = 0;
        for (const std::string& statement : host.statements)
            count += statement.starts_with("UPDATE VERTRAEGE SET INVDATE") ? 1 : 0;
        return count;
    }

private:
    std::string status_;
};

TEST_F(ChangedMeanwhile, HeadFieldsOfBothAreKept) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed; ///< null: the user does not touch it
        const char* colleague;
        const char* column;
        const char* stored;
        const char* named = ""; ///< in the status line
    };
    const Case cases[] = {
        {"a text", "txtKopf(1)", nullptr, "KOPF2 = 'Kollege'", "KOPF2", "Kollege", "Text 3064"},
        {"a text that was emptied", "txtKopf(1)", nullptr, "KOPF2 = NULL", "KOPF2", "NULL", "Text 3064"},
        {"a number with all decimals", "txtNumber(1)", nullptr, "NUMM2 = 7.1234", "NUMM2", "7.1234",
         "Text 4111"},
        {"a date", "txtDate2", nullptr, "DATE1 = '20260305'", "DATE1", "2026-03-05", "Text 3024"},
        {"a lookup", "txtRechn", nullptr, "RART_ID = 5", "RART_ID", "5", "Text 293"},
        {"a lookup of nothing", "txtBuchn", nullptr, "BUCHNR_ID = NULL", "BUCHNR_ID", "NULL", "Text 294"},
        {"a person", "txtMandant(0)", nullptr, "ID_MANDANTEN = 2", "ID_MANDANTEN", "2", "Mandant"},
        {"the currency", "txtWahrung", nullptr, "EURO = 0", "EURO", "false", "Text 748"},
        {"both the same", "txtKopf(1)", "gleich", "KOPF2 = 'gleich'", "KOPF2", "gleich"},
        {"both the same number", "txtNumber(1)", "7,5", "NUMM2 = 7.5", "NUMM2", "7.5000"},
        {"an empty text for none", "txtKopf(1)", "meins", "KOPF3 = ''", "KOPF2", "meins"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editHeader([&](User& user) {
            user.type("txtKopf(0)", "meines");
            if (c.typed != nullptr) user.type(c.box, c.typed);
            colleague(c.colleague);
            user.click("btnOk");
        });
        EXPECT_EQ(row(std::string{"SELECT KOPF1,"} + c.column + " FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
                  std::string{"meines | "} + c.stored);
        const std::string named = c.named;
        EXPECT_EQ(status().find("übernommen: " + named + " ") != std::string::npos, !named.empty())
            << status();
        colleague(
            "KOPF1 = NULL,KOPF2 = 'x',KOPF3 = NULL,NUMM2 = 98.4567,DATE1 = NULL,RART_ID = 1,BUCHNR_ID = 4,"
            "ID_MANDANTEN = 1,EURO = 1");
    }
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(ChangedMeanwhile, AHeadFieldThatBothChangedIsAskedAbout) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed;
        const char* colleague;
        const char* difference;
        const char* column;
        const char* mine;
        const char* theirs;
    };
    const Case cases[] = {
        {"a text", "txtKopf(0)", "meins", "KOPF1 = 'deren'", "Text 3062 – Sie: meins – inzwischen: deren",
         "KOPF1", "meins", "deren"},
        {"a text that was emptied", "txtKopf(0)", "meins", "KOPF1 = NULL",
         "Text 3062 – Sie: meins – inzwischen: (leer)", "KOPF1", "meins", "NULL"},
        {"a number typed as it was", "txtNumber(0)", "98,46", "NUMM1 = 55",
         "Text 4110 – Sie: 98,46 – inzwischen: 55,00", "NUMM1", "98.4600", "55.0000"},
        {"a number that only looks the same", "txtNumber(0)", "55", "NUMM1 = 55.001",
         "Text 4110 – Sie: 55,00 – inzwischen: 55,001", "NUMM1", "55.0000", "55.0010"},
        {"a date", "txtLieferBis", "1.3.26", "LIEFERBIS = '20260401'",
         "Lieferzeitraum bis – Sie: 01.03.2026 – inzwischen: 01.04.2026", "LIEFERBIS", "2026-03-01",
         "2026-04-01"},
        {"a lookup", "txtRechn", "", "RART_ID = 5",
         "Text 293 – Sie: (leer) – inzwischen: Stornorechnung für Käufer", "RART_ID", "NULL", "5"},
        {"a person", "txtMandant(0)", "", "ID_MANDANTEN = 2",
         "Mandant – Sie: (leer) – inzwischen: 101 Holzkontor Ennsblick", "ID_MANDANTEN", "NULL", "2"},
    };
    for (const Case& c : cases) {
        for (const char* button : {"btnMeines", "btnDeren", "btnZuruck", ""}) {
            SCOPED_TRACE(std::string{c.rule} + " " + button);
            const bool goesBack = button != std::string{"btnMeines"} && button != std::string{"btnDeren"};
            colleague("KOPF1 = 'alt',NUMM1 = 98.4567,LIEFERBIS = '20260131',RART_ID = 1,ID_MANDANTEN = 1");
            editHeader([&](User& user) {
                user.type(c.box, c.typed);
                colleague(c.colleague);
                host.statements.clear();
                onConflict(c.difference, button, [&] { EXPECT_EQ(updates(), 0); });
                user.click("btnOk");
                EXPECT_EQ(updates(), goesBack ? 0 : 1);
                if (!goesBack) return;
                onConflict(c.difference, "btnMeines"); // it is still a question
                user.click("btnOk");
            });
            EXPECT_EQ(value(std::string{"SELECT "} + c.column + " FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
                      button == std::string{"btnDeren"} ? c.theirs : c.mine);
        }
    }
}

TEST_F(ChangedMeanwhile, WhatChangesWhileTheQuestionIsOpenIsAskedAboutAgain) {
    colleague("KOPF1 = 'alt',KOPF2 = 'alt'");
    editHeader([&](User& user) {
        user.type("txtKopf(0)", "meins");
        user.type("txtKopf(1)", "auch meins");
        colleague("KOPF1 = 'deren'");
        onConflict("Text 3062 – Sie: meins – inzwischen: deren", "btnMeines",
                   [&] { colleague("KOPF1 = 'zum zweiten',KOPF2 = 'auch',KOPF3 = 'nebenbei'"); });
        onConflict("Text 3062 – Sie: meins – inzwischen: zum zweiten\n"
                   "Text 3064 – Sie: auch meins – inzwischen: auch",
                   "btnDeren", [&] { colleague("KOPF1 = 'zum dritten'"); });
        user.click("btnOk");
    });
    EXPECT_EQ(row("SELECT KOPF1,KOPF2,KOPF3 FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
              "zum dritten | auch | nebenbei")
        << "what was taken over counts as not touched";
}

TEST_F(ChangedMeanwhile, AFailedSaveOfTheHeadIsComparedOnceMore) {
    colleague("KOPF1 = 'alt',KOPF2 = 'alt'");
    editHeader([&](User& user) {
        user.type("txtKopf(0)", "meins");
        colleague("KOPF1 = 'deren',KOPF2 = 'nebenbei'");
        host.database.failOn("UPDATE VERTRAEGE SET INVDATE");
        onConflict("Text 3062 – Sie: meins – inzwischen: deren", "btnMeines");
        user.click("btnOk");
        host.database.failOn("");
        EXPECT_EQ(host.display.errors(), std::vector<std::string>{"connection lost"});
        EXPECT_EQ(user.text("txtKopf(1)"), "nebenbei");
        user.click("btnOk"); // answered already
    });
    EXPECT_EQ(row("SELECT KOPF1,KOPF2 FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "meins | nebenbei");
}

TEST_F(ChangedMeanwhile, TheNextVisitBeginsWithoutWhatWasTypedInTheLast) {
    colleague("KOPF1 = 'alt',RART_ID = 1,ID_MANDANTEN = 1");
    editHeader([](User& user) {
        user.type("txtKopf(0)", "verworfen");
        user.type("txtRechn", "");
        user.type("txtMandant(0)", "");
        user.click("btnCancel");
    });
    editHeader([&](User& user) {
        colleague("KOPF1 = 'deren',RART_ID = 5,ID_MANDANTEN = 2");
        user.click("btnOk");
    });
    EXPECT_EQ(row("SELECT KOPF1,RART_ID,ID_MANDANTEN FROM VERTRAEGE WHERE ID_VERTRAG = 1"), "deren | 5 | 2");
}

TEST_F(ChangedMeanwhile, FlagsOfTheEditorThatNobodyTouchedStayAsTheColleagueHasSetThem) {
    struct Case {
        const char* rule;
        const char* ticks; ///< the box that the user clicks
        const char* colleague;
        const char* stored; ///< closed, visible on all levels, access level
        const char* told;   ///< null: nothing
    };
    const Case cases[] = {
        {"the other box", "chkAbgeschlossen", "ACL_EMPTY = 1,ID_ACCESS_LEVELS = NULL", "true | true | NULL",
         "übernommen: Auf allen Ebenen sichtbar nein → ja."},
        {"the same box", "chkAbgeschlossen", "ABGESCHLOSSEN = 1", "true | false | 3", nullptr},
        {"nothing was clicked", "", "ABGESCHLOSSEN = 1", "true | false | 3",
         "übernommen: Abgeschlossen nein → ja."},
        {"clicked back and forth", "chkAbgeschlossen twice", "ABGESCHLOSSEN = 1", "true | false | 3",
         "übernommen: Abgeschlossen nein → ja."},
        {"the level, which has no control", "chkAbgeschlossen", "ID_ACCESS_LEVELS = 5", "true | false | 5",
         nullptr},
        {"a level that the user gives up", "chkAClEmpty", "ID_ACCESS_LEVELS = 5", "false | true | NULL",
         nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        colleague("ABGESCHLOSSEN = 0,ACL_EMPTY = 0,ID_ACCESS_LEVELS = 3");
        if (c.told != nullptr) host.display.onMessage(c.told);
        host.display.onWindow("F_Vertrag", [&](User& user) {
            const std::string ticks = c.ticks;
            if (!ticks.empty()) user.click(ticks.substr(0, ticks.find(' ')));
            if (ticks.ends_with(" twice")) user.click("chkAbgeschlossen");
            colleague(c.colleague);
            host.statements.clear();
            user.click("btnSpeichern");
        });
        host.openContract(1);
        ASSERT_EQ(host.statements.size(), 2U) << "one read, directly before the write";
        EXPECT_TRUE(host.statements[0].starts_with("SELECT ISNULL(ABGESCHLOSSEN,0)"));
        EXPECT_EQ(row("SELECT ABGESCHLOSSEN,ACL_EMPTY,ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG = 1"),
                  c.stored);
    }
}

} // namespace
} // namespace tellurix::tests
