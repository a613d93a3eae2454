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

} // namespace
} // namespace tellurix::tests
