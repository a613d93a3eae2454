#include "module/base/Decimal.h"
#include "module/ui/controls/Button.h"
#include "module/ui/input/GridEditor.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/TextSorting.h"
#include "module/ui/input/grid_keys.h"
#include "module/ui/input/grid_text.h"
#include "module/ui/input/number_box.h"
#include "module/ui/key_hints.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tellurix::tests {
namespace {

using ui::Key;

/// Rows with a mark, a name, two quantities that can be edited, and a column that nobody sees.
class Stock final : public ui::Form {
public:
    Stock() : Form("Stock", "Lager") {
        grid.setColumns({{.caption = "", .width = 2},
                         {.caption = "Name", .width = 12},
                         {.caption = "Menge", .width = 8},
                         {.caption = "Key", .visible = false},
                         {.caption = "Bestellt", .width = 8}});
        grid.setRows({{"*", "Fichte", "1,00", "7", "0,00"},
                      {"", "Tanne", "2,00", "8", "0,00"},
                      {"", "Föhre", "3,00", "9", ""},
                      {"", "Tanne\tkurz", "4,00", "10", "1,50"}});
        grid.setCurrent(0, 1);
        editor.prepare = [](ui::TextBox& cell, int) {
            ui::takeNumbers(cell, "####0.00", base::Locale::german());
        };
        editor.write = [this](int row, int column, const std::string& typed) {
            if (typed == "13") throw ui::RefusedInput{box, {{base::OwnText::noQuantity}}};
            writes.push_back(std::to_string(row) + "/" + std::to_string(column) + "=" + typed);
            return typed;
        };
        for (const auto& [button, name] :
             {std::pair{&btnNeu, 'n'}, {&btnEdit, 'e'}, {&btnWeg, 'd'}, {&btnOk, 's'}})
            button->onClick = [this, name = name] { pressed += name; };
        grid.pressOn(Key::insert, btnNeu);
        grid.pressOn(Key::f2, btnEdit);
        grid.pressOn(Key::del, btnWeg);
        setLayout(ui::column(
            {ui::frame(frame, {grid}), ui::row({btnNeu, btnEdit, btnWeg, ui::Layout{btnOk}.primary()})}));
    }

    std::string at() const {
        return std::to_string(grid.currentRow()) + "/" + std::to_string(grid.currentColumn());
    }

    std::vector<std::string> writes;
    std::string pressed;
    ui::Frame frame{*this, "frame", "Holz"};
    ui::Grid grid{*this, "grid"};
    ui::TextBox box{*this, "box"};
    ui::Button btnNeu{*this, "btnNeu", "Neu"};
    ui::Button btnEdit{*this, "btnEdit", "&Bearbeiten"};
    ui::Button btnWeg{*this, "btnWeg", "Löschen"};
    ui::Button btnOk{*this, "btnOk", "Speichern"};
    ui::GridEditor editor{grid, box};
};

class GridRules : public testing::Test {
protected:
    void work(const ScriptedDisplay::Script& script) {
        display.onWindow("Stock", [&](User& user) {
            user.focus("grid");
            script(user);
            user.close();
        });
        display.showModal(stock);
    }

    ScriptedDisplay display;
    Stock stock;
};

TEST_F(GridRules, KeysMoveTheCurrentCellAsInASpreadsheet) {
    struct Case {
        const char* rule;
        ui::KeyDown key;
        const char* at;
    };
    const Case cases[] = {
        {"End goes to the end of the row", {Key::end}, "1/4"},
        {"Home to its beginning", {Key::home}, "1/0"},
        {"with Ctrl to the end of the table", {.key = Key::end, .ctrl = true}, "3/4"},
        {"and to its beginning", {.key = Key::home, .ctrl = true}, "0/0"},
        {"down", {Key::down}, "2/2"},
        {"a page is as many rows as are seen", {Key::pageDown}, "3/2"},
        {"what nobody sees is passed over", {Key::right}, "1/4"},
    };
    work([&](User& user) {
        for (const Case& c : cases) {
            stock.grid.setCurrent(1, 2);
            user.key(c.key);
            EXPECT_EQ(stock.at(), c.at) << c.rule;
        }
    });
}

TEST_F(GridRules, TheRowOrAMarkedBlockIsCopiedForASpreadsheet) {
    const std::string first = "*\tFichte\t1,00\t0,00";
    work([&](User& user) {
        const ui::KeyDown shiftDown{.key = Key::down, .shift = true};
        EXPECT_EQ(user.copied("grid"), first);
        EXPECT_EQ(user.copied("grid", true), "\tName\tMenge\tBestellt\r\n" + first);
        user.key(shiftDown);
        user.key({.key = Key::right, .shift = true});
        EXPECT_EQ(user.copied("grid"), "Fichte\t1,00\r\nTanne\t2,00");
        EXPECT_EQ(user.copied("grid", true), "Name\tMenge\r\nFichte\t1,00\r\nTanne\t2,00");
        EXPECT_EQ(stock.at(), "0/1") << "the current cell stays where the block begins";
        user.key({.key = Key::end, .shift = true, .ctrl = true});
        EXPECT_EQ(user.copied("grid").substr(0, 18), "Fichte\t1,00\t0,00\r\n");
        EXPECT_TRUE(user.copied("grid").ends_with("\r\nTanne kurz\t4,00\t1,50")) << "a tab is no other cell";
        user.key(Key::up);
        EXPECT_FALSE(stock.grid.block()) << "a key that leads nowhere takes the mark away as well";
        user.select("grid", 2, 2, true);
        EXPECT_EQ(user.copied("grid"), "Fichte\t1,00\r\nTanne\t2,00\r\nFöhre\t3,00");
        stock.grid.addRow({"", "", "", "", ""});
        EXPECT_EQ(user.copied("grid"), first) << "other rows are not what was marked";
        user.key({.key = Key{'A'}, .ctrl = true});
        EXPECT_TRUE(user.copied("grid").starts_with(first + "\r\n\tTanne\t"));
        EXPECT_TRUE(user.copied("grid").ends_with("\r\n\t\t\t"));
        EXPECT_EQ(stock.at(), "0/1");
        stock.grid.setRows({});
        EXPECT_EQ(user.copied("grid", true), "");
        user.key({.key = Key{'A'}, .ctrl = true});
        user.key(shiftDown);
        EXPECT_EQ(user.copied("grid"), "") << "an empty table has nothing to mark";
    });
}

TEST(PastedCells, AreThoseOfTheSpreadsheet) {
    using Lines = std::vector<std::vector<std::string>>;
    struct Case {
        const char* rule;
        const char* text;
        Lines lines;
    };
    const Case cases[] = {
        {"nothing", "", {}},
        {"one cell", "a", {{"a"}}},
        {"a line end at the end begins no line", "a\tb\r\nc\td\r\n", {{"a", "b"}, {"c", "d"}}},
        {"empty cells count", "\ta\t\n\n\tb", {{"", "a", ""}, {""}, {"", "b"}}},
        {"quotation marks hold a cell together",
         "\"a\tb\nc\"\t\"say \"\"yes\"\"\"\nd",
         {{"a\tb\nc", "say \"yes\""}, {"d"}}},
        {"one that never ends is the rest", "\"a\tb", {{"a\tb"}}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ui::pastedCells(c.text), c.lines) << c.rule;
}

TEST_F(GridRules, APastedBlockIsTypedCellByCellAndStopsAtTheFirstRefusal) {
    struct Case {
        const char* rule;
        ui::Grid::Cell from;
        const char* text;
        std::vector<std::string> writes;
        const char* at;
        const char* message;
    };
    const Case cases[] = {
        {"a block",
         {0, 2},
         "5\t6,5\r\n1.234,5\t8\r\n",
         {"0/2=5", "0/4=6,5", "1/2=1234,5", "1/4=8"},
         "0/2",
         ""},
        {"an empty cell empties", {3, 4}, "\"\"", {"3/4="}, "3/4", ""},
        {"cells between that stay as they are", {0, 1}, "Fichte\t9", {"0/2=9"}, "0/1", ""},
        {"a cell that cannot be edited", {0, 1}, "Buche\t9", {}, "0/1", "Nichts ist eingefügt – Zeile 1, Spalte „Name“: Diese Zelle"},
        {"what the filter does not take", {0, 2}, "5\n12 fm\n6", {"0/2=5"}, "1/2", "Zeile 2, Spalte „Menge“"},
        {"what is too long", {0, 2}, "123456", {}, "0/2", "Sie nimmt „123456“ nicht an."},
        {"what the screen refuses",
         {1, 2},
         "5\t13",
         {"1/2=5"},
         "1/4",
         "Spalte „Bestellt“; die Zellen davor sind eingefügt. Das ist keine Menge"},
        {"no more rows", {3, 2}, "5\n6", {"3/2=5"}, "3/2", "Für „6“ ist in der Tabelle kein Platz mehr."},
        {"no more columns", {3, 4}, "5\t6", {"3/4=5"}, "3/4", "Für „6“"},
        {"nothing", {1, 2}, "", {}, "1/2", ""},
    };
    work([&](User& user) {
        stock.grid.openColumns({2, 4});
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            stock.writes.clear();
            const std::size_t told = display.errors().size();
            stock.grid.setCurrent(c.from.row, c.from.column);
            user.paste("grid", c.text);
            EXPECT_EQ(stock.writes, c.writes);
            EXPECT_EQ(stock.at(), c.at);
            EXPECT_EQ(user.focused(), "grid");
            ASSERT_EQ(display.errors().size(), told + (*c.message == '\0' ? 0 : 1));
            const std::string message = *c.message == 0 ? "" : display.errors().back();
            EXPECT_NE(message.find(c.message), std::string::npos) << message;
        }
        EXPECT_EQ(stock.grid.cell(1, 2), "5") << "what is written is shown";
        stock.grid.openColumns({});
        stock.writes.clear();
        user.paste("grid", "5");
        EXPECT_TRUE(stock.writes.empty());
    });
}

TEST_F(GridRules, KeysOfTheRowGiveWayToCellsThatCanBeEdited) {
    work([&](User& user) {
        for (const Key key : {Key::insert, Key::f2, Key::del})
            user.key(key);
        EXPECT_EQ(stock.pressed, "ned");
        EXPECT_EQ(user.focused(), "grid") << "the next key is meant for the rows";
        user.key({.key = Key::insert, .shift = true});
        EXPECT_EQ(stock.pressed, "ned") << "with Shift it is another key";

        stock.grid.openColumns({2, 4});
        user.key(Key::del);
        EXPECT_EQ(stock.pressed, "ned") << "no row goes where a cell may have been meant";
        user.key(Key::f2);
        EXPECT_EQ(stock.pressed, "nede") << "on a name there is no cell to edit";
        stock.grid.setCurrent(0, 2);
        user.key(Key::f2);
        EXPECT_EQ(user.focused(), "box");
        EXPECT_EQ(user.text("box"), "1,00");
        user.key(Key::escape);
        user.key(Key::del);
        EXPECT_EQ(user.text("box"), "");
        user.key(Key::enter);
        EXPECT_EQ(stock.writes, std::vector<std::string>{"0/2="}) << "emptied on purpose";
        EXPECT_EQ(stock.pressed, "nede");
    });
}

TEST_F(GridRules, TheStatusLineNamesTheKeysThatAreNext) {
    work([&](User& user) {
        const auto hints = [&] {
            std::string all;
            for (const ui::KeyHint& hint : ui::keyHints(stock))
                all += (all.empty() ? "" : ", ") + hint.key + " " + hint.effect;
            return all;
        };
        EXPECT_EQ(hints(), "Einfg Neu, F2 Bearbeiten, Strg+C Kopieren, F1 Tasten");
        stock.btnNeu.setEnabled(false);
        EXPECT_EQ(hints(), "F2 Bearbeiten, Strg+C Kopieren, Strg+S Speichern, F1 Tasten");
        stock.grid.openColumns({2, 4});
        EXPECT_EQ(hints(), "F2 Zelle ändern, Strg+S Speichern, Esc Schließen, F1 Tasten");
        stock.grid.setCurrent(0, 2);
        user.key(Key::f2);
        EXPECT_EQ(hints(), "Enter übernehmen, Esc verwerfen, ↑ ↓ Zeile, F1 Tasten");
        user.key(Key::escape);
        stock.setLanguage("en");
        user.focus("btnOk");
        EXPECT_EQ(hints(), "Ctrl+S Speichern, Esc Close, F1 keys");
    });
}

TEST_F(GridRules, LettersGoToTheRowThatBeginsWithThem) {
    work([&](User& user) {
        user.type("ta");
        EXPECT_EQ(stock.at(), "1/1");
        user.key(Key::up);
        user.type("f");
        EXPECT_EQ(stock.at(), "2/1") << "behind another key it is a first letter";
        stock.grid.setCurrent(0, 2);
        stock.grid.openColumns({2, 4});
        user.type("7");
        EXPECT_EQ(user.focused(), "box") << "a cell that can be edited takes it";
        user.key(Key::escape);
    });
    using namespace std::chrono_literals;
    const ui::RowSearch::Clock::time_point start{};
    struct Case {
        const char* rule;
        char32_t typed;
        ui::RowSearch::Clock::duration after;
        int row;
    };
    ui::RowSearch search;
    stock.grid.setCurrent(0, 0);
    auto now = start + 1h;
    for (const Case& c : std::vector<Case>{{"the next one, without regard to capitals", U't', 0s, 1},
                                           {"the same letter goes on", U'T', 500ms, 3},
                                           {"and begins again", U't', 500ms, 1},
                                           {"after a pause it is a first letter", U'f', 2s, 2},
                                           {"more letters stay", U'ö', 100ms, 2},
                                           {"none begins so", U'x', 100ms, ui::Grid::none},
                                           {"another column, where the current one has none", U'4', 2s, 3},
                                           {"a blank is nothing to look for", U' ', 2s, ui::Grid::none}}) {
        now += c.after;
        const int row = search.typed(stock.grid, c.typed, now);
        EXPECT_EQ(row, c.row) << c.rule;
        if (row != ui::Grid::none) stock.grid.setCurrent(row, 0);
    }
}

TEST_F(GridRules, CtrlAndArrowsSizeTheCurrentColumn) {
    int sized = 0;
    stock.grid.onColumnSized = [&] { ++sized; };
    work([&](User& user) {
        const auto width = [&] { return stock.grid.columns()[1].width; };
        user.key({.key = Key::right, .ctrl = true});
        EXPECT_EQ(width(), 13);
        user.key({.key = Key::left, .ctrl = true});
        user.key({.key = Key::left, .ctrl = true});
        EXPECT_EQ(width(), 11);
        user.key({.key = Key::right, .shift = true, .ctrl = true});
        EXPECT_EQ(width(), 10) << "as wide as its longest text";
        EXPECT_TRUE(stock.grid.columns()[1].sized);
        EXPECT_EQ(sized, 4);
        EXPECT_EQ(stock.at(), "0/1");
    });
    ui::applyGridKey(stock.grid, {{.key = Key::left, .ctrl = true}, 20});
    EXPECT_EQ(stock.grid.columns()[1].width, 19) << "from what is seen of it";
}

TEST_F(GridRules, AHeadingOrdersTextsByWhatTheyMean) {
    ui::TextSorting sorting{stock.grid, base::Locale::german()};
    sorting.show({{"", "tanne", "12,50", "", "05.01.2026"},
                  {"", "Buche", "-3,00", "", "31.12.2025"},
                  {"", "Ahorn", "", "", "ab Werk"},
                  {"", "Buche", "1.250,00", "", ""}});
    struct Case {
        const char* rule;
        int column;
        const char* origins;
    };
    work([&](User& user) {
        user.select("grid", 3, 1);
        for (const Case& c :
             {Case{"texts, capitals or not; equal ones as they were", 1, "2130"},
              Case{"the other way", 1, "0312"}, Case{"numbers; what is empty comes first", 2, "2103"},
              Case{"not all are dates: as texts", 4, "3012"}}) {
            user.clickHeading("grid", c.column);
            std::string origins;
            for (int row = 0; row < 4; ++row)
                origins += std::to_string(sorting.originOf(row));
            EXPECT_EQ(origins, c.origins) << c.rule;
            EXPECT_EQ(stock.grid.cell(stock.grid.currentRow(), 2), "1.250,00")
                << "the row stays the current one";
        }
        sorting.show({{"", "a", "", "", "05.01.2026"}, {"", "b", "", "", "31.12.2025"}});
        EXPECT_EQ(sorting.originOf(0), 1u) << "dates, and other rows keep the order";
        stock.grid.setCell(0, 0, "*");
        user.clickHeading("grid", 4);
        EXPECT_EQ(stock.grid.cell(1, 0), "*") << "what was written into a cell goes along";
    });
}

TEST_F(GridRules, CtrlSSavesAndF1ShowsTheKeysOfTheWindow) {
    work([&](User& user) {
        user.key({.key = Key{'S'}, .ctrl = true});
        EXPECT_EQ(stock.pressed, "s");
        stock.btnOk.setEnabled(false);
        user.key({.key = Key{'S'}, .ctrl = true});
        EXPECT_EQ(stock.pressed, "s") << "there is nothing to save at the moment";
        stock.btnOk.setEnabled(true);

        std::vector<ui::Grid::Row> keys;
        display.onWindow("F_Tasten", [&](User& reader) {
            EXPECT_EQ(reader.window().title(), "Tasten – Lager");
            keys = reader.grid("grdTasten").rows();
            reader.key(Key::f1);
            reader.key(Key::escape);
        });
        stock.status().say("Gelöscht", "&Rückgängig", [] {});
        user.key(Key::f1);
        for (const ui::Grid::Row& row :
             std::vector<ui::Grid::Row>{{"Einfg", "Neu"},
                                        {"F2", "Bearbeiten"},
                                        {"Entf", "Löschen"},
                                        {"Alt+B", "Bearbeiten"},
                                        {"Strg+S", "Speichern"},
                                        {"Alt+R", "Rückgängig"},
                                        {"Strg+V", "ab der aktuellen Zelle einfügen"},
                                        {"Esc", "Fenster schließen"}})
            EXPECT_EQ(std::ranges::count(keys, row), 1) << row.front() << " " << row.back();
        EXPECT_EQ(user.focused(), "btnOk") << "where it was";
    });
}

} // namespace
} // namespace tellurix::tests
