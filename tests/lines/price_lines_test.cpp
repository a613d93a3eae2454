#include "module/ui/controls/ComboBox.h"
#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

class PriceLines : public LinesTest {};

TEST_F(PriceLines, TheLayoutFollowsSettingSiteAndType) {
    struct Case {
        const char* rule;
        const char* meszahl;
        const char* site;
        const char* type;
        const char* columns;
        bool percent;
        bool secondPrice;
    };
    const Case cases[] = {
        {"plain", "0", "", "R", "|Bezeichnung|Preis|Einheit|Währung", false, false},
        {"no setting at all", "", "", "R", "|Bezeichnung|Preis|Einheit|Währung", false, false},
        {"the percentage", "1", "", "R", "|Bezeichnung|Msz|Preis|Einheit|Währung", true, false},
        {"a number, not a text", " 1.0", "", "R", "|Bezeichnung|Msz|Preis|Einheit|Währung", true, false},
        {"logistics site", "0", "WVO", "R", "|Bezeichnung|Preis|Einheit|Währung|Preis_Abr2", false, true},
        {"the percentage leaves no column for the second price", "1", "WVO", "R",
         "|Bezeichnung|Msz|Preis|Einheit|Währung", true, true},
        {"stock-price site", "0", "UELZEN", "A6", "|Bezeichnung|Preis|Einheit|Währung|Stockpreis", false,
         true},
        {"the type is compared exactly", "0", "UELZEN", "a6", "|Bezeichnung|Preis|Einheit|Währung", false,
         false},
        {"the site is compared exactly", "0", "wvo", "R", "|Bezeichnung|Preis|Einheit|Währung", false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        host.settings["MESZAHL"] = c.meszahl;
        host.session.site = c.site;
        editPrices(
            13,
            [&](User& user) {
                std::string captions;
                for (const auto& column : user.grid("MSFlexGrid1").columns())
                    captions +=
                        (&column == &user.grid("MSFlexGrid1").columns().front() ? "" : "|") + column.caption;
                EXPECT_EQ(captions, c.columns);
                EXPECT_EQ(user.control<ui::TextBox>("txtMsz").visible(), c.percent);
                EXPECT_EQ(user.control<ui::TextBox>("txtPreis_Abr2").visible(), c.secondPrice);
                user.click("cmdOk");
            },
            c.type);
    }
}

TEST_F(PriceLines, EveryFieldGoesIntoItsOwnBoxAndBackAgain) {
    host.session.site = "UELZEN";
    host.settings["MESZAHL"] = "1";
    struct Case {
        std::int32_t contract;
        int row;
        const char* cells;
        const char* boxes;
    };
    const Case cases[] = {
        {fullContract, 0, "|Fichte am Hang|1,1|11,11|Rm|CHF",
         "Fichte am Hang|1,1|11,11|11,22|FI|B|A|1b|4|Rm|CHF"},
        {fullContract, 1, "|Lärche am Hang|2,2|22,22|Fm o.R.|CHF",
         "Lärche am Hang|2,2|22,22|12,21|LA|L|B|2a|5|Fm o.R.|CHF"},
        {fullContract, 2, "|Buche am Hang|3,3|33,33|atro-t|EUR",
         "Buche am Hang|3,3|33,33|13,31|BU|BR|D|2b|1|atro-t|EUR"},
        {sparseContract, 0, "|Fracht voll||9,99|SRm|CHF", "Fracht voll||9,99|||L||3a||SRm|CHF"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.boxes);
        const std::string before = prices("*", c.contract);
        editPrices(
            c.contract,
            [&](User& user) {
                user.select("MSFlexGrid1", c.row, 1);
                EXPECT_EQ(cells(user.grid("MSFlexGrid1"), c.row), c.cells);
                std::string boxes;
                for (const char* box : {"txtBEZEICHNUNG", "txtMsz", "txtPreis", "txtPreis_Abr2", "txtHa",
                                        "txtHs", "txtGKL", "txtStkl", "txtLange"})
                    boxes += user.text(box) + "|";
                EXPECT_EQ(boxes + user.control<ui::ComboBox>("cboUnit").selectedText() + "|" +
                              user.control<ui::ComboBox>("cboGeld").selectedText(),
                          c.boxes);
                user.click("btnPreiseAendern");
                EXPECT_EQ(user.grid("grdVorschau").cell(c.row, 0), user.text("txtBEZEICHNUNG"));
                user.click("cmdBearbeiten");
                user.click("cmdSpeichern");
                user.click("cmdOk");
            },
            "A6");
        EXPECT_TRUE(c.contract != fullContract || prices("*", c.contract) == before);
    }
}

TEST_F(PriceLines, LoadingShowsTheLinesAndPutsTheirPlacesInOrder) {
    host.session.site = "WVO";
    editPrices(16, [&](User& user) {
        const ui::Grid& grid = user.grid("MSFlexGrid1");
        ASSERT_EQ(grid.rows().size(), 3u);
        EXPECT_EQ(cells(grid, 0), "|Schleifholz Fichte|12,34|Fm|CHF|");
        EXPECT_EQ(cells(grid, 1), "|Schleifholz Tanne|12,35|Fm|CHF|3,00");
        EXPECT_EQ(cells(grid, 2), "|Schleifholz Bruch|80,00|Rm|EUR|");
        EXPECT_EQ(grid.currentRow(), 0);
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Schleifholz Fichte");
        EXPECT_EQ(user.text("txtHa"), "FI");
        EXPECT_EQ(user.text("txtHs"), "S");
        EXPECT_TRUE(user.checked("chkSelektion"));
        EXPECT_FALSE(user.usable("txtPreis"));
        EXPECT_FALSE(user.usable("txtHa"));
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ID", 16), "[11][12][13]") << "3, 7, 9 became 1, 2, 3";
    host.statements.clear();
    editPrices(16, [](User& user) { user.key(Key::escape); });
    EXPECT_EQ(sent("WHERE ID = "), 0) << "places that are right are not written again";
}

TEST_F(PriceLines, OpeningTheEditorCostsTheSameForAnyNumberOfLines) {
    for (int i = 0; i < 50; ++i) {
        const std::string place = std::to_string(i + 1);
        host.database.execute("INSERT INTO VERTRAG_PREISE (ID_VERTRAG,ORDNUNG) VALUES (17," + place + ")");
        host.database.execute("INSERT INTO VERTRAG_MENGEN (ID_VERTRAG,ORDNUNG) VALUES (17," + place + ")");
    }
    std::vector<std::size_t> counts;
    for (const int contract : {1, 17}) {
        host.statements.clear();
        host.display.onWindow("F_Vertrag", [&](User& user) {
            counts.push_back(host.statements.size());
            user.close();
        });
        host.openContract(contract);
    }
    EXPECT_EQ(counts[0], counts[1]);
    EXPECT_LE(counts[0], 16u);
}

TEST_F(PriceLines, WithoutLinesOnlyNewAndCloseAreUsable) {
    editPrices(17, [](User& user) {
        for (const char* button : {"cmdBearbeiten", "cmdSpeichern", "cmdAbbrechen", "cmdLoschen", "cmdSelect",
                                   "chkEdit", "btnPreiseAendern", "UpDown1", "txtHa"}) {
            EXPECT_FALSE(user.usable(button)) << button;
        }
        EXPECT_TRUE(user.usable("cmdNeu"));
        EXPECT_FALSE(user.checked("chkSelektion"));
        user.click("cmdOk");
    });
}

TEST_F(PriceLines, GoingToARowShowsItsFieldsAndItsSelection) {
    editPrices(2, [](User& user) {
        user.focus("MSFlexGrid1");
        user.key(Key::down);
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Übriges Nadelholz ab 4 m");
        EXPECT_EQ(user.text("txtPreis"), "89,00");
        EXPECT_EQ(user.text("txtHa"), "") << "the dialog's form is not shown in part";
        EXPECT_EQ(user.text("txtLange"), "");
        EXPECT_TRUE(user.checked("chkSelektion"));
        user.key(Key::up);
        EXPECT_EQ(user.text("txtStkl"), "2b,3a,3b");
        user.click("cmdOk");
    });
}

TEST_F(PriceLines, ANewLineIsWrittenWithItsSelectionAtTheEnd) {
    host.database.execute("UPDATE VERTRAG_PREISE SET PREIS_ABR2 = 12.5 WHERE ID = 1");
    host.columnWidths["VERTRAG_PREISE.BEZEICHNUNG"] = 20;
    editPrices(1, [&](User& user) {
        user.click("cmdNeu");
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Fichte Blochholz A/B") << "keeps what it shows";
        EXPECT_EQ(user.text("txtPreis"), "");
        EXPECT_EQ(user.control<ui::ComboBox>("cboUnit").selected(), ui::ItemList::none);
        EXPECT_EQ(user.control<ui::ComboBox>("cboGeld").selected(), ui::ItemList::none);
        EXPECT_FALSE(user.checked("chkSelektion")) << "it has none yet";
        EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), ui::Grid::none) << "no old line is the current one";
        EXPECT_FALSE(user.usable("MSFlexGrid1"));
        EXPECT_FALSE(user.usable("cmdOk"));
        EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "3");
        user.type("txtBEZEICHNUNG", "Dünne Fichte d'Or, zu lang");
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Dünne Fichte d'Or, z");
        user.type("txtBEZEICHNUNG", "Dünne Fichte d'Or");
        user.type("txtPreis", "1250,5");
        user.select("cboUnit", 2);
        user.select("cboGeld", 0);
        user.type("txtHa", "FI,  KI");
        user.type("txtHs", "");
        user.type("txtGKL", "");
        user.type("txtLange", "4.5,x,6");
        user.click("cmdSpeichern");
        EXPECT_EQ(user.status(), "Gespeichert");
        EXPECT_EQ(user.text("txtLange"), "4.5,6");
        EXPECT_EQ(cells(user.grid("MSFlexGrid1"), 3), "|Dünne Fichte d'Or|1250,50|Fm o.R.|EUR");
        EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 3);
        EXPECT_TRUE(user.usable("cmdNeu"));
        user.click("cmdOk");
    });
    EXPECT_EQ(
        row("SELECT ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,MSZ_PERCENT,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2 "
            "FROM VERTRAG_PREISE WHERE ID = 28"),
        "4 | Dünne Fichte d'Or | 83 IN ('FI', 'KI') ;94 IN (4.5, 6) ; | 2.50 | 1250.5000 | true | 8 | NULL");
    EXPECT_TRUE(host.display.errors().empty());
}

TEST_F(PriceLines, CancellingANewLineLeavesNothingBehind) {
    struct Case {
        const char* rule;
        bool dialogFirst;
        std::function<void(User&)> leave;
        bool asks;
        bool closes;
    };
    const auto press = [](User& user) { user.click("cmdAbbrechen"); };
    const auto escape = [](User& user) { user.key(Key::escape); };
    const auto close = [](User& user) { user.close(); };
    const Case cases[] = {
        {"before its row was made", false, press, false, false},
        {"after its row was made", true, press, false, false},
        {"by Esc, which may be meant for something else", false, escape, true, false},
        {"by the window's close box", true, close, true, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editPrices(1, [&](User& user) {
            user.click("cmdNeu");
            user.type("txtBEZEICHNUNG", "verworfen");
            if (c.dialogFirst) {
                user.click("cmdSelect");
                EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "4");
            }
            if (c.asks) {
                host.display.onMessage("nicht gespeichert", Answer::no);
                c.leave(user);
                EXPECT_EQ(ui::box::defaultOf(host.display.messages().back().flags), 1) << "No is the default";
                EXPECT_EQ(user.text("txtBEZEICHNUNG"), "verworfen");
                host.display.onMessage("nicht gespeichert", Answer::yes);
            }
            c.leave(user);
            if (c.closes) return;
            EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 0) << "the line before is the current one again";
            EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Fichte Blochholz A/B");
            EXPECT_EQ(user.text("txtHs"), "B");
            EXPECT_TRUE(user.checked("chkSelektion"));
            user.click("cmdOk");
        });
        EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "3");
    }
}

TEST_F(PriceLines, WhatWasNotChangedIsLeftWithoutAQuestionAndTheInnermostClosesFirst) {
    editPrices(1, [&](User& user) {
        EXPECT_EQ(user.window().title(), "Preise – R-2025-001 Fichte Wolfsberg");
        user.click("cmdBearbeiten");
        user.key(Key::escape);
        EXPECT_TRUE(user.usable("cmdNeu")) << "nothing was typed";
        user.click("btnPreiseAendern");
        user.type("txtWert", "5");
        user.key(Key::escape);
        EXPECT_FALSE(user.usable("txtWert"));
        EXPECT_EQ(user.focused(), "btnPreiseAendern");
        user.click("chkEdit");
        user.select("MSFlexGrid1", 0, 2);
        user.doubleClick("MSFlexGrid1");
        user.type("4");
        host.display.onMessage("nicht gespeichert", Answer::no);
        user.close();
        EXPECT_EQ(user.text("txtEdit"), "4") << "a price that is being typed is not lost by accident";
        user.key(Key::escape);
        user.key(Key::escape);
    });
}

TEST_F(PriceLines, APriceOfZeroIsAskedFor) {
    struct Case {
        const char* rule;
        const char* typed;
        std::optional<Answer> answer;
        const char* stored;
    };
    host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 98.4567 WHERE ID = 1");
    const Case cases[] = {
        {"zero, and No", "0", Answer::no, "98.4567"},
        {"zero, and Yes", "0,00", Answer::yes, "0.0000"},
        {"below zero is not asked", "-5,5", std::nullopt, "-5.5000"},
        {"a point is a comma", "7.25", std::nullopt, "7.2500"},
        {"no price", "", std::nullopt, "NULL"},
        {"typed as it is shown", "98,46", std::nullopt, "98.4600"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        if (c.answer) {
            host.display.onMessage("Wollen Sie die Position mit dem Preis von 0,00 Euro speichern?",
                                   *c.answer, "Vertrag Preise");
        }
        editPrices(1, [&](User& user) {
            user.click("cmdBearbeiten");
            user.type("txtPreis", c.typed);
            user.click("cmdSpeichern");
            if (user.usable("cmdAbbrechen")) user.click("cmdAbbrechen");
            user.click("cmdOk");
        });
        EXPECT_EQ(value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 1"), c.stored);
        host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 98.4567 WHERE ID = 1");
    }
    EXPECT_EQ(host.display.messages().front().flags, ui::box::yesNo);
}

TEST_F(PriceLines, EditingWritesWhatWasTypedAndKeepsWhatWasNot) {
    host.database.execute("UPDATE VERTRAG_PREISE SET ID_WARENEINHEIT = 9 WHERE ID = 12");
    editPrices(16, [&](User& user) {
        user.select("MSFlexGrid1", 1, 1);
        EXPECT_EQ(user.text("txtPreis"), "12,35");
        EXPECT_EQ(user.control<ui::ComboBox>("cboUnit").selected(), ui::ItemList::none)
            << "Stunde is no timber unit";
        user.click("cmdBearbeiten");
        user.type("txtBEZEICHNUNG", "Tanne");
        user.key(Key::tab);
        user.key(Key::tab);
        user.click("cmdSpeichern");
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 1), "Tanne");
        user.click("cmdOk");
    });
    EXPECT_EQ(row("SELECT ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2 FROM "
                  "VERTRAG_PREISE WHERE ID = 12"),
              "2 | Tanne | 83 IN ('TA') ;87 IN ('S') ; | 12.3450 | false | 9 | 3.0000")
        << "a third decimal and a unit that is not offered stay";
}

TEST_F(PriceLines, LinesMoveUpAndDown) {
    // A server may insist that no two lines of a contract have the same place, not even for a moment.
    host.database.execute("CREATE UNIQUE INDEX UX_PLACE ON VERTRAG_PREISE (ID_VERTRAG, ORDNUNG)");
    editPrices(1, [&](User& user) {
        user.focus("UpDown1");
        user.key(Key::up);
        EXPECT_EQ(prices("ID", 1), "[1][2][3]") << "the first cannot go up";
        user.key(Key::down);
        EXPECT_EQ(prices("ID", 1), "[2][1][3]");
        EXPECT_EQ(user.status(), "Die Zeile steht jetzt an Stelle 2");
        EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 1) << "the current row goes with the line";
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 1), "Fichte Blochholz A/B");
        user.key(Key::down);
        user.key(Key::down);
        EXPECT_EQ(prices("ID", 1), "[2][3][1]") << "the last cannot go down";
        user.key(Key::up);
        user.click("cmdLoschen");
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ID", 1), "[2][3]") << "what is deleted is the line that was moved";
}

TEST_F(PriceLines, AFailureWhileMovingIsRepairedByTheNextLoad) {
    editPrices(1, [&](User& user) {
        host.database.failOn("WHERE ID = 2");
        user.focus("UpDown1");
        user.key(Key::down);
        EXPECT_EQ(host.display.errors(), std::vector<std::string>{"connection lost"});
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(0, 1), "Fichte Blochholz A/B");
        host.database.failOn("VERTRAG_PREISE");
        user.key(Key::down);
        host.database.failOn("");
        user.close();
    });
    EXPECT_EQ(prices("ID", 1), "[1][2][3]");
    host.database.execute("UPDATE VERTRAG_PREISE SET ORDNUNG = 0 WHERE ID = 2");
    editPrices(1, [](User& user) { user.close(); });
    EXPECT_EQ(prices("ID", 1), "[2][1][3]") << "the line with 0 is found and numbered";
}

TEST_F(PriceLines, DeletingClosesTheGap) {
    host.database.execute(
        "INSERT INTO VERTRAG_PREISE (ID_VERTRAG,ORDNUNG,BEZEICHNUNG) VALUES (1,4,'vierte')");
    editPrices(1, [&](User& user) {
        user.select("MSFlexGrid1", 1, 1);
        // Loading, which would put the places right as well, has nothing to write any more.
        host.database.failOn("VERTRAG_PREISE WHERE ID = 3");
        user.click("cmdLoschen");
        EXPECT_TRUE(host.display.errors().empty());
        host.database.failOn("");
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Kiefer Langholz") << "the next one is current";
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ID,ORDNUNG", 1), "[1 | 1][3 | 2][28 | 3]");
    editPrices(8, [&](User& user) {
        user.click("cmdLoschen");
        EXPECT_FALSE(user.usable("cmdLoschen")) << "none is left";
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "");
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ID", 8), "");
}

} // namespace
} // namespace tellurix::tests
