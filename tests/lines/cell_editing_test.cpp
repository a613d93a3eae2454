#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

class CellEditing : public LinesTest {
protected:
    /// Opens the price lines of contract 1 with editing in the grid switched on and the cell of the
    /// second line's price current.
    void editCells(const ScriptedDisplay::Script& script) {
        editPrices(1, [&](User& user) {
            user.click("chkEdit");
            user.select("MSFlexGrid1", 1, 2);
            script(user);
            user.click("cmdOk");
        });
    }
    std::string stored() { return prices("PREIS", 1); }
};

TEST_F(CellEditing, KeysInTheBox) {
    struct Case {
        const char* rule;
        Key key;
        const char* cell;
        int row;
        const char* focus;
    };
    const Case cases[] = {
        {"Enter writes and goes back to the grid", Key::enter, "5,50", 1, "MSFlexGrid1"},
        {"Esc goes back without writing, and does not close", Key::escape, "76,25", 1, "MSFlexGrid1"},
        {"Up writes and goes up", Key::up, "5,50", 0, "MSFlexGrid1"},
        {"Down writes and goes down", Key::down, "5,50", 2, "MSFlexGrid1"},
        {"Tab writes and goes on behind the grid", Key::tab, "5,50", 1, "cmdSelect"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editCells([&](User& user) {
            const ui::Grid& grid = user.grid("MSFlexGrid1");
            user.type("5,5");
            EXPECT_EQ(grid.cellEditor(), &user.control<ui::TextBox>("txtEdit"));
            EXPECT_EQ(grid.editedRow(), 1);
            EXPECT_EQ(grid.editedColumn(), 2);
            EXPECT_EQ(user.text("txtEdit"), "5,5") << "the key that opened the box replaces the text";
            EXPECT_EQ(user.focused(), "txtEdit");
            user.key(c.key);
            EXPECT_EQ(grid.cellEditor(), nullptr);
            EXPECT_FALSE(user.usable("txtEdit"));
            EXPECT_EQ(grid.cell(1, 2), c.cell);
            EXPECT_EQ(grid.currentRow(), c.row);
            EXPECT_EQ(user.focused(), c.focus);
        });
        EXPECT_EQ(value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 2"),
                  std::string{c.key == Key::escape ? "76.2500" : "5.5000"});
        host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 76.25 WHERE ID = 2");
    }
}

TEST_F(CellEditing, TheEdgesOfTheGridKeepTheRow) {
    editCells([&](User& user) {
        user.select("MSFlexGrid1", 0, 2);
        user.type("1");
        user.key(Key::up);
        EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 0);
        user.select("MSFlexGrid1", 2, 2);
        user.type("3");
        user.key(Key::down);
        EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), 2);
    });
    EXPECT_EQ(stored(), "[1.0000][76.2500][3.0000]");
}

TEST_F(CellEditing, WhatOpensTheBox) {
    editCells([&](User& user) {
        const ui::Grid& grid = user.grid("MSFlexGrid1");
        user.doubleClick("MSFlexGrid1");
        EXPECT_EQ(user.text("txtEdit"), "76,25") << "a double click keeps the text";
        EXPECT_EQ(user.control<ui::TextBox>("txtEdit").selectionLength(), 5);
        user.key(Key::enter);
        EXPECT_EQ(grid.cellEditor(), nullptr);
        user.key(Key::enter);
        EXPECT_EQ(grid.cellEditor(), nullptr) << "Enter on the grid does not open it";
        user.type("x");
        EXPECT_EQ(grid.cellEditor(), nullptr) << "a key that cannot be part of a number does not";
        user.type("-");
        EXPECT_NE(grid.cellEditor(), nullptr) << "a minus does";
        user.key(Key::escape);
        for (const int column : {0, 1, 3, 4}) {
            user.select("MSFlexGrid1", 1, column);
            user.doubleClick("MSFlexGrid1");
            user.type("1");
            EXPECT_EQ(grid.cellEditor(), nullptr) << "column " << column;
        }
        user.select("MSFlexGrid1", 1, 2);
        user.click("chkEdit");
        user.doubleClick("MSFlexGrid1");
        EXPECT_EQ(grid.cellEditor(), nullptr) << "editing is switched off";
    });
    EXPECT_EQ(stored(), "[98.5000][76.2500][71.0000]");
}

TEST_F(CellEditing, LeavingTheBoxInAnyWayWrites) {
    struct Case {
        const char* rule;
        std::function<void(User&)> leave;
    };
    const Case cases[] = {
        {"a click on another control", [](User& user) { user.click("chkEdit"); }},
        {"a click into the grid", [](User& user) { user.select("MSFlexGrid1", 2, 2); }},
        {"scrolling", [](User& user) { user.scroll("MSFlexGrid1"); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        editCells([&](User& user) {
            user.type("8");
            c.leave(user);
            EXPECT_EQ(user.grid("MSFlexGrid1").cellEditor(), nullptr);
            EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 2), "8,00");
        });
        EXPECT_EQ(stored(), "[98.5000][8.0000][71.0000]");
        host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 76.25 WHERE ID = 2");
    }
}

TEST_F(CellEditing, WhatIsNoNumberIsZeroAndWhatDidNotChangeIsNotWritten) {
    host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 12.345 WHERE ID = 2");
    editCells([&](User& user) {
        user.doubleClick("MSFlexGrid1");
        user.key(Key::enter);
        EXPECT_EQ(value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 2"), "12.3450")
            << "looking at a cell does not round it";
        user.type("12,35");
        user.key(Key::enter);
        EXPECT_EQ(value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 2"), "12.3500")
            << "typing what it shows does";
        user.doubleClick("MSFlexGrid1");
        user.replaceText("txtEdit", "1'; DELETE FROM VERTRAG_PREISE --");
        user.key(Key::enter);
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 2), "0,00");
        user.select("MSFlexGrid1", 2, 2);
        user.type("-");
        user.key(Key::enter);
    });
    EXPECT_EQ(stored(), "[98.5000][0.0000][0.0000]");
}

TEST_F(CellEditing, AFailingWriteKeepsTheBoxWithWhatWasTyped) {
    editCells([&](User& user) {
        user.type("9");
        host.database.failOn("UPDATE VERTRAG_PREISE SET PREIS");
        user.key(Key::enter);
        EXPECT_EQ(host.display.errors().size(), 1u);
        EXPECT_EQ(user.focused(), "txtEdit");
        EXPECT_EQ(user.text("txtEdit"), "9");
        host.database.failOn("");
        user.key(Key::enter);
    });
    EXPECT_EQ(stored(), "[98.5000][9.0000][71.0000]");
}

TEST_F(CellEditing, TheColumnsAreFixedWhateverTheLayout) {
    host.session.site = "WVO";
    editCells([&](User& user) {
        user.select("MSFlexGrid1", 2, 5);
        user.type("4,25");
        user.key(Key::enter);
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(2, 5), "4,25");
    });
    EXPECT_EQ(row("SELECT PREIS,PREIS_ABR2 FROM VERTRAG_PREISE WHERE ID = 3"), "71.0000 | 4.2500");
    host.settings["MESZAHL"] = "1";
    editCells([&](User& user) {
        user.type("7");
        user.key(Key::enter);
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 3), "7,00") << "the price, one column further right";
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(1, 2), "");
    });
    EXPECT_EQ(row("SELECT MSZ_PERCENT,PREIS FROM VERTRAG_PREISE WHERE ID = 2"), "NULL | 7.0000");
}

} // namespace
} // namespace tellurix::tests
