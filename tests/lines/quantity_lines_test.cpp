#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Label.h"
#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

class QuantityLines : public LinesTest {
protected:
    std::string warning(User& user) { return user.control<ui::TextBox>("txtOffen").warning(); }
};

TEST_F(QuantityLines, LoadingShowsTheLinesAndMarksTheCurrentOne) {
    editQuantities(16, [&](User& user) {
        const ui::Grid& grid = user.grid("MSFlexGrid1");
        ASSERT_EQ(grid.rows().size(), 2u);
        EXPECT_EQ(cells(grid, 0), ">>|Schleifholz|900,00|Fm");
        EXPECT_EQ(cells(grid, 1), "|Schleifholz Bruch|60,00|Rm");
        user.focus("MSFlexGrid1");
        user.key(Key::down);
        EXPECT_EQ(grid.cell(0, 0), "");
        EXPECT_EQ(grid.cell(1, 0), ">>");
        user.click("cmdOk");
    });
    EXPECT_EQ(rows("VERTRAG_MENGEN", "ID", 16), "[20][21]") << "2 and 5 became 1 and 2";
}

TEST_F(QuantityLines, DeliveredAndOpenInEveryUnit) {
    struct Case {
        const char* rule;
        std::int32_t contract;
        int row;
        const char* type;
        const char* open;
    };
    // Worked out from the sample's logs.
    const Case cases[] = {
        {"Fm: 100 - (20.5 + 17)", 1, 0, "R", "62,50"},
        {"Fm: line 1 has claimed the spruce, 250.5 - 12.25", 1, 1, "R", "238,25"},
        {"Rm: no selection takes the rest, 100 - (7/0.7 + 14.5 direct + 7/1)", 1, 2, "R", "68,50"},
        {"atro: 1200 - (24.8 direct + 30/2.5)", 3, 0, "R", "1163,20"},
        {"lutro: 300 - 18/1.2", 3, 1, "R", "285,00"},
        {"SRm: 800 - (90 direct + 40/0.4)", 4, 0, "R", "610,00"},
        {"a unit without measure delivers nothing", 4, 1, "R", "50,00"},
        {"Stück: 2000 - (180 direct + 5/0.05)", 6, 0, "R", "1720,00"},
        {"100 Stück: 40 - 250/100", 6, 1, "R", "37,50"},
        {"a line without a unit", 7, 0, "R", "500,00"},
        {"the column of type A1: 60 - (20.5 + 17)", 8, 0, "a1", "22,50"},
        {"A1: 25 - 12.25", 8, 1, "A1", "12,75"},
        {"A6: 350 - 44.6", 13, 0, "A6", "305,40"},
        {"nothing is booked against the contract", 16, 0, "R", "900,00"},
        {"Rm, of many measures: 10.25 - 12.6/0.7", 18, 0, "A6", "-7,75"},
        {"atro: 200.125 - 13/2.6", 18, 1, "A6", "195,13"},
        {"Stück: 30.5 - 23 direct", 18, 2, "A6", "7,50"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editQuantities(
            c.contract,
            [&](User& user) {
                user.select("MSFlexGrid1", c.row, 1);
                EXPECT_EQ(user.text("txtOffen"), c.open);
                user.click("cmdOk");
            },
            c.type);
    }
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(QuantityLines, BehindALineWithoutSelectionNothingIsDeliveredAndNothingAsked) {
    host.database.execute("UPDATE VERTRAG_MENGEN SET SELEKTION_VALUE = NULL WHERE ID = 1");
    editQuantities(1, [&](User& user) {
        EXPECT_EQ(user.text("txtOffen"), "26,10") << "100 - all six logs of the contract";
        host.statements.clear();
        user.select("MSFlexGrid1", 1, 1);
        EXPECT_EQ(user.text("txtOffen"), "250,50");
        EXPECT_EQ(sent("FROM LOGS"), 0);
        user.click("cmdOk");
    });
}

TEST_F(QuantityLines, MoreThanAgreedOrPermittedIsAWarningAndNeverABlock) {
    struct Case {
        const char* rule;
        const char* agreed;
        const char* permitted; ///< per cent in the logistics settings
        const char* open;
        bool warned;
    };
    const Case cases[] = {
        {"less than agreed", "38", "NULL", "0,50", false},  {"exactly", "37.5", "NULL", "0,00", false},
        {"more", "37.49", "NULL", "-0,01", true},           {"permitted 10 %", "35", "10", "-2,50", false},
        {"more than permitted", "34", "10", "-3,50", true}, {"nothing agreed", "NULL", "10", "-37,50", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.database.execute(std::string{"UPDATE VERTRAG_MENGEN SET MENGE = "} + c.agreed + " WHERE ID = 1");
        host.database.execute(std::string{"UPDATE WVO_VERTRAG SET UBERLIEFERUNG = "} + c.permitted +
                              " WHERE ID_VERTRAEGE = 1");
        editQuantities(1, [&](User& user) {
            EXPECT_EQ(user.text("txtOffen"), c.open);
            EXPECT_EQ(!warning(user).empty(), c.warned) << warning(user);
            user.click("cmdBearbeiten");
            user.click("cmdSpeichern");
            user.select("MSFlexGrid1", 1, 1);
            EXPECT_EQ(warning(user), "") << "of another line";
            user.click("cmdOk");
        });
    }
}

TEST_F(QuantityLines, MeasuresOfAnyTypeAreQuantitiesOfSixDecimals) {
    struct Case {
        const char* rule;
        const char* type;
        const char* measures[3]; ///< of three logs of line 1
        const char* agreed;
        const char* open;
        bool warned;
    };
    ownTables = {"LOGS", "LOGS_RECH"};
    const Case cases[] = {
        {"noise of floating-point numbers is no over-delivery",
         "float",
         {"0.1", "0.2", "0"},
         "0.3",
         "0,00",
         false},
        {"a real one is", "float", {"0.1", "0.200001", "0"}, "0.3", "0,00", true},
        {"many decimals",
         "decimal(18,13)",
         {"33.3333333333333", "33.3333333333333", "33.3333333333334"},
         "100",
         "0,00",
         false},
        {"more than can be added up exactly",
         "float",
         {"12345.678901234567", "1e-9", "0.1"},
         "20000",
         "7654,22",
         false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.database.execute("DROP TABLE LOGS");
        host.database.execute(std::string{"CREATE TABLE LOGS (ID_LOG int IDENTITY(1,1) NOT NULL PRIMARY KEY,"
                                          "NUMMER int NULL,DATUM datetime NULL,HA nvarchar(10) NULL,"
                                          "HS nvarchar(10) NULL,DSART smallint NULL,KUBRM float NULL,"
                                          "KUBATRO float NULL,STK float NULL,UFAKT_RM float NULL,KUBATUR "} +
                              c.type + " NULL)");
        for (const char* measure : c.measures) {
            host.database.execute(std::string{"INSERT INTO LOGS (HA,HS,DSART,KUBATUR) VALUES ('FI','B',1,"} +
                                  measure + ")");
        }
        host.database.execute("DELETE FROM LOGS_RECH");
        host.database.execute("INSERT INTO LOGS_RECH (ID_LOG,R_VERTRAG) SELECT ID_LOG,"
                              "'R-2025-001 Fichte Wolfsberg' FROM LOGS");
        host.database.execute(std::string{"UPDATE VERTRAG_MENGEN SET SELEKTION_VALUE = '83 IN (''FI'') ;',"
                                          "MENGE = "} +
                              c.agreed + " WHERE ID = 1");
        editQuantities(1, [&](User& user) {
            EXPECT_EQ(user.text("txtOffen"), c.open);
            EXPECT_EQ(!warning(user).empty(), c.warned) << warning(user);
            host.display.onWindow("F_OffeneMenge", [](User& shown) {
                EXPECT_EQ(shown.grid("grdHolz").rows().size(), 3u);
                shown.key(Key::escape);
            });
            user.click("btnOffen");
            user.click("cmdOk");
        });
        EXPECT_TRUE(host.display.errors().empty()) << host.display.errors().front();
    }
}

TEST_F(QuantityLines, TheNumberCanBeChecked) {
    host.display.onWindow("F_Vertrag", [](User& user) {
        user.click("PosButton");
        user.click("btnAbbrechen");
    });
    host.display.onWindow("F_VertragMengen", [&](User& user) {
        user.select("MSFlexGrid1", 2, 1);
        host.statements.clear();
        user.click("btnOffen");
        EXPECT_EQ(sent("COUNT(*)"), 1) << "all earlier lines at once";
        user.click("cmdOk");
    });
    host.display.onWindow("F_OffeneMenge", [&](User& user) {
        EXPECT_EQ(user.window().title(), "Offene Menge – R-2025-001 Fichte Wolfsberg");
        const ui::Grid& grid = user.grid("grdHolz");
        ASSERT_EQ(grid.rows().size(), 3u);
        EXPECT_EQ(cells(grid, 0), "250004|11.02.2025|TA|B|7,00 Fm|10,00");
        EXPECT_EQ(cells(grid, 1), "250005|05.03.2025|LA|F|14,50 Rm|14,50");
        EXPECT_EQ(cells(grid, 2), "250006|06.03.2025|DG|B|7,00 Fm|7,00");
        EXPECT_EQ(user.caption("lblSumme"), "Geliefert 31,50 Rm von 100,00 Rm, offen 68,50 Rm");
        EXPECT_EQ(user.items("lstFrueher"), "Zeile 1: 2 Stämme\nZeile 2: 1 Stamm\n");
        user.key(Key::escape);
    });
    host.openContract(1);
}

TEST_F(QuantityLines, ASelectionThatCannotBeReadIsReportedAndTheLineCanBePutRight) {
    host.database.execute("UPDATE VERTRAG_MENGEN SET SELEKTION_VALUE = '12 = 3 ;' WHERE ID = 1");
    editQuantities(1, [&](User& user) {
        EXPECT_EQ(host.display.errors().size(), 1u);
        EXPECT_EQ(user.text("txtOffen"), "");
        user.select("MSFlexGrid1", 1, 1);
        ASSERT_EQ(host.display.errors().size(), 2u);
        EXPECT_EQ(host.display.errors().back(),
                  "Zeile 1 „" + user.grid("MSFlexGrid1").cell(0, 1) + "“: kein Merkmal: 12 = 3 ")
            << "it is not the line that is looked at";
        user.select("MSFlexGrid1", 0, 1);
        user.click("cmdBearbeiten");
        user.type("txtHa", "FI");
        user.click("cmdSpeichern");
        EXPECT_EQ(user.text("txtOffen"), "62,50");
        user.click("cmdOk");
    });
    EXPECT_EQ(host.display.errors().size(), 3u);
}

TEST_F(QuantityLines, TheOrderOfTheLinesDecidesWhatCounts) {
    editQuantities(1, [&](User& user) {
        user.focus("UpDown1");
        user.key(Key::down);
        EXPECT_EQ(user.text("txtOffen"), "100,00") << "line 2 now claims the spruce first";
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 0), ">>");
        user.select("MSFlexGrid1", 0, 1);
        EXPECT_EQ(user.text("txtOffen"), "200,75");
        user.click("cmdOk");
    });
}

TEST_F(QuantityLines, NewEditAndDeleteWriteTheirTable) {
    editQuantities(2, [&](User& user) {
        user.click("cmdNeu");
        EXPECT_EQ(user.text("txtMenge"), "");
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(0, 0), "") << "no old line is the current one";
        user.click("cmdAbbrechen");
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(0, 0), ">>");
        user.click("cmdNeu");
        user.type("txtBEZEICHNUNG", "Zweite");
        user.type("txtMenge", "-0,5");
        user.select("cboUnit", 0);
        user.type("txtHa", "KI");
        user.type("txtLange", "");
        user.click("cmdSpeichern");
        EXPECT_EQ(cells(user.grid("MSFlexGrid1"), 1), ">>|Zweite|-0,50|Fm");
        EXPECT_EQ(row("SELECT ORDNUNG,MENGE,SELEKTION_VALUE FROM VERTRAG_MENGEN WHERE ID = 33"),
                  "2 | -0.500 | 83 IN ('KI') ;");
        user.click("cmdBearbeiten");
        user.type("txtMenge", "0");
        user.click("cmdSpeichern");
        EXPECT_EQ(value("SELECT MENGE FROM VERTRAG_MENGEN WHERE ID = 33"), "0.000")
            << "zero is not asked for";
        user.click("cmdSelect");
        EXPECT_EQ(host.selections.back(), "33VERTM/R");
        user.select("MSFlexGrid1", 0, 1);
        user.click("cmdLoschen");
        user.click("cmdOk");
    });
    EXPECT_EQ(rows("VERTRAG_MENGEN", "ID,ORDNUNG", 2), "[33 | 1]");
    EXPECT_TRUE(host.display.messages().empty());
}

TEST_F(QuantityLines, AContractTypeThatIsNoneReachesNoStatement) {
    editQuantities(
        1,
        [&](User& user) {
            EXPECT_EQ(host.display.errors().size(), 1u);
            EXPECT_EQ(sent("FROM LOGS"), 0);
            EXPECT_EQ(user.text("txtOffen"), "");
            user.click("cmdOk");
        },
        "R_VERTRAG = 'x') --");
}

} // namespace
} // namespace tellurix::tests
