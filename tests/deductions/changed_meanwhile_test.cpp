#include "tests/deductions/DeductionsTest.h"

namespace tellurix::tests {
namespace {

/// A colleague saves the same calculation while its lines are on the screen.
class DeductionsMeanwhile : public DeductionsTest {
protected:
    static constexpr const char* key = " WHERE RECH_NAME = 'R-2025-001 Fichte Wolfsberg' AND VER_TYPE = 'V'";

    void colleague(const std::string& assignments, int line) {
        host.database.execute("UPDATE ABSCHLAG SET " + assignments + key +
                              " AND LINE_NUM = " + std::to_string(line));
    }
    std::string lines() { return stored(spruce, "LINE_NUM,STATISTIK,BEZEICH,WERT_TEXT,WERT_LINE"); }
    void restore() {
        host.database.execute(std::string{"DELETE FROM ABSCHLAG"} + key);
        for (const char* values :
             {"0,2,'Rinde','-10,00',NULL", "1,3,'Käfer','-25,75','1'", "2,13,'Skonto','-2,00','1,2'"})
            host.database.execute(
                "INSERT INTO ABSCHLAG (RECH_NAME,VER_TYPE,ABS_MODEL,LINE_NUM,STATISTIK,BEZEICH,WERT_TEXT,"
                "WERT_LINE) VALUES ('R-2025-001 Fichte Wolfsberg','V','Alt'," +
                std::string{values} + ")");
    }
    int deletions() const {
        int count = 0;
        for (const std::string& statement : host.statements)
            count += statement.starts_with("DELETE FROM ABSCHLAG") ? 1 : 0;
        return count;
    }
};

TEST_F(DeductionsMeanwhile, WhatOnlyTheColleagueChangedIsSavedWithTheRest) {
    struct Case {
        const char* rule;
        std::function<void()> colleague;
        const char* stored;
        const char* named;
    };
    const Case cases[] = {
        {"another line", [this] { colleague("WERT_TEXT = '-3,00',BEZEICH = NULL", 2); },
         "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | NULL | -3,00 | 1,2]",
         "Zeile 3"},
        {"a new line",
         [this] {
             host.database.execute(
                 "INSERT INTO ABSCHLAG (RECH_NAME,VER_TYPE,LINE_NUM,STATISTIK,WERT_TEXT) VALUES "
                 "('R-2025-001 Fichte Wolfsberg','V',3,5,'1,00')");
         },
         "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | Skonto | -2,00 | 1,2]"
         "[3 | 5 | NULL | 1,00 | NULL]",
         "Zeile 4"},
        {"a deleted line",
         [this] { host.database.execute(std::string{"DELETE FROM ABSCHLAG"} + key + " AND LINE_NUM = 2"); },
         "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1]", "Zeile 3"},
        {"another field of the line", [this] { colleague("BEZEICH = 'deren'", 0); },
         "[0 | 2 | deren | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | Skonto | -2,00 | 1,2]",
         "Zeile 1, Bezeichnung Rinde → deren"},
        {"the same value", [this] { colleague("WERT_TEXT = '-12.00'", 0); },
         "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | Skonto | -2,00 | 1,2]",
         nullptr},
        {"the model",
         [this] { host.database.execute(std::string{"UPDATE ABSCHLAG SET ABS_MODEL = 'Neu'"} + key); },
         "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | Skonto | -2,00 | 1,2]",
         "Modell Alt → Neu"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        restore();
        const std::string model = edit(1, [&](User& user) {
            user.type("TextWert(0)", "-12");
            c.colleague();
            host.statements.clear();
            user.click("btnOk");
            EXPECT_EQ(host.statements.at(0), std::string{"SELECT * FROM ABSCHLAG"} + key);
            EXPECT_TRUE(host.statements.at(1).starts_with("DELETE FROM ABSCHLAG"))
                << "directly behind the read";
        });
        EXPECT_EQ(lines(), c.stored);
        const std::string saved = "Zu- und Abschläge gespeichert";
        EXPECT_EQ(said, c.named == nullptr
                            ? saved
                            : saved + ". Von jemand anderem geändert und übernommen: " + c.named + ".");
        EXPECT_EQ(model, std::string{c.rule} == "the model" ? "Neu" : "Alt");
    }
}

TEST_F(DeductionsMeanwhile, WhatBothChangedIsAskedAbout) {
    struct Case {
        const char* rule;
        const char* box;
        const char* typed;
        const char* colleague;
        const char* difference;
        const char* mine; ///< the third line
        const char* theirs;
    };
    const Case cases[] = {
        {"a value", "TextWert(2)", "-5", "WERT_TEXT = '-3,50'",
         "Zeile 3, Wert – Sie: -5,00 – inzwischen: -3,50", "[2 | 13 | Skonto | -5,00 | 1,2]",
         "[2 | 13 | Skonto | -3,50 | 1,2]"},
        {"references", "txtWert(2)", "", "WERT_LINE = '1'",
         "Zeile 3, Bezugszeile(n) – Sie: (leer) – inzwischen: 1", "[2 | 13 | Skonto | -2,00 | NULL]",
         "[2 | 13 | Skonto | -2,00 | 1]"},
        {"another statistic is another line", "TextWert(2)", "-5", "STATISTIK = 3,BEZEICH = NULL",
         "Zeile 3 – Sie: Skonto, Skonto, -5,00, 1,2 – inzwischen: Güteabschlag, -2,00, 1,2",
         "[2 | 13 | Skonto | -5,00 | 1,2]", "[2 | 3 | NULL | -2,00 | 1,2]"},
    };
    for (const Case& c : cases) {
        for (const char* button : {"btnMeines", "btnDeren", "btnZuruck"}) {
            SCOPED_TRACE(std::string{c.rule} + " " + button);
            restore();
            const bool goesBack = button == std::string{"btnZuruck"};
            edit(1, [&](User& user) {
                user.type(c.box, c.typed);
                colleague(c.colleague, 2);
                host.statements.clear();
                onConflict(c.difference, button);
                user.click("btnOk");
                EXPECT_EQ(deletions(), goesBack ? 0 : 1);
                if (!goesBack) return;
                onConflict(c.difference, "btnMeines");
                user.click("btnOk");
            });
            EXPECT_NE(lines().find(button == std::string{"btnDeren"} ? c.theirs : c.mine), std::string::npos)
                << lines();
        }
    }
}

TEST_F(DeductionsMeanwhile, AGapThatTheColleagueMadeIsRefusedBeforeAnythingIsDeleted) {
    restore();
    host.display.onMessage("Text 223");
    edit(1, [&](User& user) {
        user.type("TextWert(0)", "-12");
        host.database.execute(std::string{"DELETE FROM ABSCHLAG"} + key + " AND LINE_NUM = 1");
        host.statements.clear();
        user.click("btnOk");
        EXPECT_EQ(user.focused(), "CmbStat(1)");
        EXPECT_EQ(deletions(), 0);
        user.click("btnAbbrechen");
    });
    EXPECT_EQ(said, "") << "nothing was saved";
}

TEST_F(DeductionsMeanwhile, WhatAFailedSaveHasDeletedIsNoColleaguesWork) {
    restore();
    edit(1, [&](User& user) {
        user.type("TextWert(0)", "-12");
        host.database.failOn("LINE_NUM = 1");
        user.click("btnOk");
        host.database.failOn("");
        user.click("btnOk");
    });
    EXPECT_EQ(lines(),
              "[0 | 2 | Rinde | -12,00 | NULL][1 | 3 | Käfer | -25,75 | 1][2 | 13 | Skonto | -2,00 | 1,2]");
}

TEST_F(DeductionsMeanwhile, AStatisticTakenOutByDelComesBack) {
    edit(1, [&](User& user) {
        const std::string before = line(user, 0);
        user.focus("CmbStat(0)");
        user.key(ui::Key::del);
        EXPECT_EQ(user.status(), "Statistik der Zeile 1 gelöscht.|&Rückgängig");
        EXPECT_NE(line(user, 0), before);
        user.type("TextBez(1)", "anders");
        user.pressStatus();
        EXPECT_EQ(user.status(), "Statistik der Zeile 1 wiederhergestellt.");
        EXPECT_EQ(line(user, 0), before);
        EXPECT_TRUE(user.control<ui::Label>("Label1(0)").highlighted()) << "its article as well";
        EXPECT_EQ(user.text("TextBez(1)"), "anders");
        user.click("btnAbbrechen");
    });
    edit(1, [&](User& user) {
        EXPECT_EQ(user.status(), "");
        user.click("btnAbbrechen");
    });
}

TEST_F(DeductionsMeanwhile, NothingIsPutBackIntoTheLinesOfAModel) {
    host.modelLines[0] = {.statistic = 5, .designation = "Fracht", .value = "8.5"};
    edit(1, [&](User& user) {
        user.focus("CmbStat(0)");
        user.key(ui::Key::del);
        host.display.onMessage("durch das Modell „Eins“ ersetzt", ui::Answer::yes);
        user.select("CmbModel", 0);
        const std::string taken = line(user, 0);
        user.focus("CmbStat(0)");
        user.key(ui::Key::del);
        user.pressStatus();
        EXPECT_EQ(user.status(), "Statistik der Zeile 1 wiederhergestellt.") << "and nothing more to undo";
        EXPECT_EQ(line(user, 0), taken);
        user.click("btnAbbrechen");
    });
}

} // namespace
} // namespace tellurix::tests
