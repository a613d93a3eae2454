#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

/// Somebody else works on the same contract while its lines are on the screen.
class OtherUsers : public LinesTest {
protected:
    std::string prices() { return rows("VERTRAG_PREISE", "ID,BEZEICHNUNG,PREIS,SELEKTION_VALUE", 1); }
    void swapFirstTwo(const std::string& table) {
        const std::string set = "UPDATE " + table + " SET ORDNUNG = ";
        host.database.execute(
            set + "(CASE ORDNUNG WHEN 1 THEN 2 ELSE 1 END) WHERE ID_VERTRAG = 1 AND ORDNUNG <= 2");
    }
    /// Writes the first price line.
    void colleague(const std::string& assignments) {
        host.database.execute("UPDATE VERTRAG_PREISE SET " + assignments + " WHERE ID = 1");
    }
    /// One more error was shown, and holds `part`.
    void expectRefused(const std::string& part) {
        ASSERT_EQ(host.display.errors().size(), ++refused_);
        EXPECT_NE(host.display.errors().back().find(part), std::string::npos) << host.display.errors().back();
    }

private:
    std::size_t refused_ = 0;
};

TEST_F(OtherUsers, AMovedLineIsNotSavedIntoTheOneAtItsPlace) {
    struct Case {
        const char* table;
        const char* box;
        const char* columns;
    };
    const Case cases[] = {
        {"VERTRAG_PREISE", "txtPreis", "ID,BEZEICHNUNG,PREIS,SELEKTION_VALUE"},
        {"VERTRAG_MENGEN", "txtMenge", "ID,BEZEICHNUNG,MENGE,SELEKTION_VALUE"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.table);
        std::string moved;
        const auto script = [&](User& user) {
            user.click("cmdBearbeiten");
            user.type(c.box, "77");
            user.type("txtHa", "KI");
            swapFirstTwo(c.table);
            moved = rows(c.table, c.columns, 1);
            user.click("cmdSpeichern");
            expectRefused("von jemand anderem verschoben");
            EXPECT_EQ(user.text(c.box), "77,00") << "what was typed is still there";
            user.click("cmdAbbrechen");
            expectRefused("zeigt jetzt den neuen Stand");
            EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 1) << "the line is followed to its new place";
            EXPECT_EQ(user.text("txtBEZEICHNUNG"), user.grid("MSFlexGrid1").cell(1, 1));
            user.click("cmdOk");
        };
        if (c.table == std::string{"VERTRAG_PREISE"}) {
            editPrices(1, script);
        } else {
            editQuantities(1, script);
        }
        EXPECT_EQ(rows(c.table, c.columns, 1), moved);
    }
}

TEST_F(OtherUsers, ADeletedLineCanBeLeft) {
    editPrices(1, [&](User& user) {
        user.select("MSFlexGrid1", 2);
        user.click("cmdBearbeiten");
        host.database.execute("DELETE FROM VERTRAG_PREISE WHERE ID = 3");
        user.click("cmdSpeichern");
        expectRefused("gelöscht");
        user.click("cmdAbbrechen");
        expectRefused("zeigt jetzt den neuen Stand");
        EXPECT_EQ(user.grid("MSFlexGrid1").rows().size(), 2u);
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Fichte/Tanne C und Käferholz");
        user.click("cmdOk");
    });
}

TEST_F(OtherUsers, APriceTypedIntoACellIsNotWrittenIntoAnotherLine) {
    editPrices(1, [&](User& user) {
        user.click("chkEdit");
        user.select("MSFlexGrid1", 0, 2);
        user.type("5");
        swapFirstTwo("VERTRAG_PREISE");
        user.key(ui::Key::enter);
        expectRefused("„5“");
        EXPECT_EQ(user.grid("MSFlexGrid1").cellEditor(), nullptr);
        EXPECT_EQ(cells(user.grid("MSFlexGrid1"), 0), "|Fichte/Tanne C und Käferholz|76,25|Fm|EUR");
        EXPECT_EQ(cells(user.grid("MSFlexGrid1"), 1), "|Fichte Blochholz A/B|98,50|Fm|EUR");
        user.click("cmdOk");
    });
    EXPECT_EQ(value("SELECT SUM(PREIS) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "245.7500");
}

TEST_F(OtherUsers, GoingToARowShowsTheListAsItIsNow) {
    editPrices(1, [&](User& user) {
        const ui::Grid& grid = user.grid("MSFlexGrid1");
        host.database.execute("DELETE FROM VERTRAG_PREISE WHERE ID = 1");
        host.database.execute("UPDATE VERTRAG_PREISE SET ORDNUNG = ORDNUNG - 1 WHERE ID_VERTRAG = 1");
        user.focus("MSFlexGrid1");
        user.key(ui::Key::down);
        expectRefused("Die Liste zeigt jetzt den neuen Stand");
        EXPECT_EQ(grid.rows().size(), 2u);
        EXPECT_EQ(grid.currentRow(), 0) << "the line that was gone to";
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Fichte/Tanne C und Käferholz");
        host.database.execute("DELETE FROM VERTRAG_PREISE WHERE ID = 3");
        user.key(ui::Key::down);
        expectRefused("Die Liste zeigt jetzt den neuen Stand");
        EXPECT_EQ(grid.rows().size(), 1u) << "the line has gone";
        user.click("cmdOk");
    });
}

TEST_F(OtherUsers, ALineThatIsBeingMadeComesLast) {
    host.database.execute("INSERT INTO VERTRAG_PREISE (ID_VERTRAG) VALUES (1)");
    editPrices(1, [](User& user) { user.close(); });
    EXPECT_EQ(rows("VERTRAG_PREISE", "ID", 1).substr(0, 9), "[1][2][3]");
    EXPECT_EQ(value("SELECT MAX(ORDNUNG) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "4");
}

TEST_F(OtherUsers, FieldsOfALineThatOnlyTheColleagueChangedStay) {
    struct Case {
        const char* rule;
        const char* colleague;
        const char* column;
        const char* stored;
        const char* named = ""; ///< in the status line
    };
    const Case cases[] = {
        {"the description", "BEZEICHNUNG = 'Kollege'", "BEZEICHNUNG", "Kollege", "Bezeichnung"},
        {"a number with all decimals", "PREIS_ABR2 = 7.1234", "PREIS_ABR2", "7.1234"},
        {"the unit", "ID_WARENEINHEIT = 2", "ID_WARENEINHEIT", "2", "Einheit"},
        {"a unit that is not offered", "ID_WARENEINHEIT = 4711", "ID_WARENEINHEIT", "4711"},
        {"the currency", "EURO = 0", "EURO", "false"},
        {"the selection, which is stored by its boxes", "SELEKTION_VALUE = '83 IN (''BU'') ;'",
         "SELEKTION_VALUE", "83 IN ('BU') ;"},
        {"a selection of the dialog", "SELEKTION_VALUE = 'x OR y'", "SELEKTION_VALUE", "x OR y"},
        {"the same price", "PREIS = 77", "PREIS", "77.0000"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.database.execute(
            "UPDATE VERTRAG_PREISE SET BEZEICHNUNG = 'alt',PREIS = 98.5,PREIS_ABR2 = 1,"
            "ID_WARENEINHEIT = 1,EURO = 1,SELEKTION_VALUE = '83 IN (''FI'') ;' WHERE ID = 1");
        editPrices(1, [&](User& user) {
            user.click("cmdBearbeiten");
            user.type("txtPreis", "77");
            colleague(c.colleague);
            user.click("cmdSpeichern");
            EXPECT_NE(user.status().find(c.named), std::string::npos) << user.status();
            user.click("cmdOk");
        });
        EXPECT_EQ(row(std::string{"SELECT PREIS,"} + c.column + " FROM VERTRAG_PREISE WHERE ID = 1"),
                  std::string{"77.0000 | "} + c.stored);
    }
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(OtherUsers, WhatIsNotSavedYetAndWhatCameFromThemIsSeenAtItsBox) {
    using ui::ChangedBy;
    const auto expectMarks = [](User& user, ChangedBy price, ChangedBy description, const char* when) {
        EXPECT_EQ(user.control<ui::Control>("txtPreis").changedBy(), price) << when;
        EXPECT_EQ(user.control<ui::Control>("txtBEZEICHNUNG").changedBy(), description) << when;
    };
    editPrices(1, [&](User& user) {
        user.click("cmdBearbeiten");
        user.type("txtPreis", "77");
        expectMarks(user, ChangedBy::user, ChangedBy::nobody, "typed");
        user.click("cmdAbbrechen");
        expectMarks(user, ChangedBy::nobody, ChangedBy::nobody, "cancelled");
        user.click("cmdBearbeiten");
        user.type("txtPreis", "77");
        colleague("BEZEICHNUNG = 'Kollege'");
        user.click("cmdSpeichern");
        EXPECT_EQ(user.status(), "Gespeichert. Von jemand anderem geändert und übernommen: Bezeichnung "
                                 "Fichte Blochholz A/B → Kollege.");
        expectMarks(user, ChangedBy::nobody, ChangedBy::colleague, "saved: the user reads of it now");
        user.click("cmdNeu");
        expectMarks(user, ChangedBy::nobody, ChangedBy::nobody, "a new line is nobody's");
        user.click("cmdAbbrechen");
        user.click("cmdBearbeiten");
        user.type("txtPreis", "78");
        colleague("PREIS = 55,BEZEICHNUNG = NULL");
        host.display.onWindow("F_Inzwischen", [](User& answer) { answer.click("btnZuruck"); });
        user.click("cmdSpeichern");
        expectMarks(user, ChangedBy::user, ChangedBy::colleague, "nothing is written: both stay as they are");
        user.click("cmdAbbrechen");
        user.select("MSFlexGrid1", 1);
        expectMarks(user, ChangedBy::nobody, ChangedBy::nobody, "another line");
        user.click("cmdOk");
    });
}

TEST_F(OtherUsers, AFieldOfALineThatBothChangedIsAskedAboutBeforeAnythingIsWritten) {
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
        {"the price", "txtPreis", "77,25", "PREIS = 55", "Preis – Sie: 77,25 – inzwischen: 55,00", "PREIS",
         "77.2500", "55.0000"},
        {"the description", "txtBEZEICHNUNG", "", "BEZEICHNUNG = 'deren'",
         "Bezeichnung – Sie: (leer) – inzwischen: deren", "BEZEICHNUNG", "NULL", "deren"},
        {"the selection", "txtHa", "FI, KI", "SELEKTION_VALUE = '83 IN (''BU'') ;90 IN (''B'') ;'",
         "Schnellselektion – Sie: Ha FI,KI – inzwischen: Ha BU; GKL B", "SELEKTION_VALUE",
         "83 IN ('FI', 'KI') ;", "83 IN ('BU') ;90 IN ('B') ;"},
    };
    for (const Case& c : cases) {
        for (const char* button : {"btnMeines", "btnDeren", "btnZuruck"}) {
            SCOPED_TRACE(std::string{c.rule} + " " + button);
            host.database.execute("UPDATE VERTRAG_PREISE SET BEZEICHNUNG = 'alt',PREIS = 98.5,"
                                  "SELEKTION_VALUE = '83 IN (''FI'') ;' WHERE ID = 1");
            const bool goesBack = button == std::string{"btnZuruck"};
            editPrices(1, [&](User& user) {
                user.click("cmdBearbeiten");
                user.type(c.box, c.typed);
                colleague(c.colleague);
                host.statements.clear();
                onConflict(c.difference, button);
                user.click("cmdSpeichern");
                EXPECT_EQ(sent("UPDATE VERTRAG_PREISE") == 0, goesBack);
                EXPECT_EQ(user.usable("cmdSpeichern"), goesBack);
                user.click(goesBack ? "cmdAbbrechen" : "cmdOk");
                if (goesBack) user.click("cmdOk");
            });
            EXPECT_EQ(value(std::string{"SELECT "} + c.column + " FROM VERTRAG_PREISE WHERE ID = 1"),
                      button == std::string{"btnMeines"} ? c.mine : c.theirs);
        }
    }
}

TEST_F(OtherUsers, AQuantityThatBothChangedIsAskedAbout) {
    editQuantities(1, [&](User& user) {
        user.click("cmdBearbeiten");
        user.type("txtMenge", "400");
        host.database.execute(
            "UPDATE VERTRAG_MENGEN SET MENGE = 300.125 WHERE ID_VERTRAG = 1 AND ORDNUNG = 1");
        onConflict("Menge – Sie: 400,00 – inzwischen: 300,125", "btnDeren");
        user.click("cmdSpeichern");
        EXPECT_EQ(cells(user.grid("MSFlexGrid1"), 0).find("300,13") != std::string::npos, true);
        user.click("cmdOk");
    });
    EXPECT_EQ(value("SELECT MENGE FROM VERTRAG_MENGEN WHERE ID_VERTRAG = 1 AND ORDNUNG = 1"), "300.125");
}

TEST_F(OtherUsers, ASelectionOfTheDialogWhileALineIsEditedIsTheUsersOwn) {
    editPrices(1, [&](User& user) {
        user.click("cmdBearbeiten");
        host.onSelectionDialog = [](const std::string&) { return "83 >= 'FI'"; };
        user.click("cmdSelect");
        user.click("cmdSpeichern"); // no question
        user.click("cmdOk");
    });
    EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 1"), "83 >= 'FI'");
}

TEST_F(OtherUsers, APriceInACellThatBothChangedIsAskedAbout) {
    struct Case {
        const char* button;
        const char* stored;
    };
    const Case cases[] = {{"btnMeines", "5.0000"}, {"btnDeren", "55.5000"}, {"btnZuruck", "56.0000"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.button);
        colleague("PREIS = 98.5");
        editPrices(1, [&](User& user) {
            user.click("chkEdit");
            user.select("MSFlexGrid1", 0, 2);
            user.type("5");
            colleague("PREIS = 55.5");
            onConflict("Preis – Sie: 5 – inzwischen: 55,50", c.button);
            user.key(ui::Key::enter);
            const ui::Grid& grid = user.grid("MSFlexGrid1");
            if (c.button == std::string{"btnZuruck"}) {
                expectRefused("Es wurde nichts geschrieben.");
                ASSERT_NE(grid.cellEditor(), nullptr);
                EXPECT_EQ(user.text("txtEdit"), "5");
                EXPECT_EQ(user.focused(), "txtEdit");
                user.key(ui::Key::escape);
                colleague("PREIS = 56");
            } else {
                EXPECT_EQ(grid.cellEditor(), nullptr);
                EXPECT_EQ(grid.cell(0, 2), c.button == std::string{"btnDeren"} ? "55,50" : "5,00");
            }
            user.click("cmdOk");
        });
        EXPECT_EQ(value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 1"), c.stored);
    }
}

} // namespace
} // namespace tellurix::tests
