#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/ListBox.h"
#include "tests/ui/InputTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

struct InputRules : InputTest {};

TEST_F(InputRules, TabAndEnterGoThroughTheLayoutAndSkipWhatCannotBeUsed) {
    order.frmExtra.setEnabled(false);
    work([&](User& user) {
        std::vector<std::string> visited{user.focused()};
        for (int i = 0; i < 5; ++i) {
            user.key(i % 2 == 0 ? Key::enter : Key::tab);
            visited.push_back(user.focused());
        }
        EXPECT_EQ(visited, (std::vector<std::string>{"txtName", "txtDatum", "txtMenge", "txtKunde",
                                                     "txtGesperrt", "btnKunden"}));
        user.key(Key::tab, true);
        EXPECT_EQ(user.focused(), "txtGesperrt");
        user.key(Key::enter, true);
        EXPECT_EQ(user.focused(), "txtKunde") << "Shift+Enter goes back as well";
        order.txtKunde.onLeave = [this] {
            order.frmExtra.setEnabled(true);
            order.txtGesperrt.setEnabled(false);
            return true;
        };
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "chkExtra") << "what leaving has changed counts for where Tab goes";
        user.key(Key::escape);
    });
}

TEST_F(InputRules, CtrlTabIsNoTabAndAWindowBeginsAtItsFirstBoxEachTime) {
    for (int time = 0; time < 2; ++time) {
        ui::Desktop desktop{display, display};
        desktop.runModal(order, [&]() -> ui::Event {
            EXPECT_EQ(order.focused(), &order.txtName);
            for (const bool alt : {false, true})
                desktop.dispatch(ui::KeyDownEvent{{.key = Key::tab, .ctrl = !alt, .alt = alt}});
            EXPECT_EQ(order.focused(), &order.txtName);
            desktop.dispatch(ui::FocusEvent{&order.txtKunde});
            return ui::CloseEvent{};
        });
    }
}

TEST_F(InputRules, CtrlAloneF4AndTheSmallButtonOpenThePicker) {
    work([&](User& user) {
        user.focus("txtKunde");
        user.ctrl();
        EXPECT_EQ(order.picks, 1);
        EXPECT_EQ(user.text("txtKunde"), "Maier");
        user.key(Key::f4);
        EXPECT_EQ(order.picks, 2);
        user.key(Key::tab);
        user.ctrl();
        EXPECT_EQ(order.picks, 2) << "a box without a picker";
        user.close();
    });
    ui::Desktop desktop{display, display};
    desktop.runModal(order, [&]() -> ui::Event {
        desktop.dispatch(ui::PickEvent{&order.txtKunde});
        return ui::CloseEvent{};
    });
    EXPECT_EQ(order.picks, 3);
}

TEST_F(InputRules, AccessKeysPressTickAndGo) {
    work([&](User& user) {
        user.alt(U'M');
        EXPECT_EQ(user.focused(), "txtMenge");
        user.alt(U'x');
        EXPECT_TRUE(user.checked("chkExtra"));
        user.alt(U'u');
        EXPECT_EQ(order.customersOpened, 1) << "&& marks no key";
        order.txtKunde.setEnabled(false);
        order.btnNeu.setEnabled(false);
        user.alt(U'n');
        user.focus("txtDatum");
        user.alt(U'n');
        EXPECT_EQ(user.focused(), "txtName") << "what cannot be used is not counted";
        order.txtKunde.setEnabled(true);
        user.focus("txtDatum");
        user.alt(U'n');
        EXPECT_EQ(user.focused(), "txtName") << "a shared key goes to the first …";
        user.alt(U'N');
        EXPECT_EQ(user.focused(), "txtKunde") << "… and on to the next";
        user.close();
    });
}

TEST_F(InputRules, ABarOfAChartIsChosenOnceTheBoxMayBeLeft) {
    std::vector<int> chosen;
    order.chart.setBars({{"01", {3}, "3"}, {"02", {0}, "0"}});
    order.chart.onSelect = [&](int bar) { chosen.push_back(bar); };
    work([&](User& user) {
        user.type("txtDatum", "99.99.2025");
        user.select("chart", 1);
        EXPECT_TRUE(chosen.empty());
        user.type("txtDatum", "");
        user.select("chart", 1);
        EXPECT_EQ(chosen, std::vector{1});
        EXPECT_EQ(user.focused(), "txtDatum") << "a chart never has the focus";
        user.close();
    });
    const std::pair<double, double> scales[] = {{0.3, 1}, {4, 4}, {6, 6}, {40, 40}, {41, 50}, {1001, 1500}};
    for (const auto& [largest, top] : scales) {
        order.chart.setBars({{"", {largest}, ""}});
        EXPECT_EQ(order.chart.scale().top, top) << largest;
    }
}

TEST_F(InputRules, WhatCanWaitIsDoneInPiecesWhileTheUserPauses) {
    int pieces = 0;
    const auto work = [&](int all) { order.later([&pieces, all] { return ++pieces < all; }); };
    this->work([&](User& user) {
        work(3);
        user.type("txtName", "a");
        EXPECT_EQ(pieces, 0) << "input comes first";
        user.pause();
        EXPECT_EQ(pieces, 3);
        work(3);
        work(10);
        user.pause();
        EXPECT_EQ(pieces, 10) << "the newest takes the place of the one before";
        order.later([]() -> bool { throw std::runtime_error{"der Server ist weg"}; });
        user.pause();
        EXPECT_EQ(display.errors().size(), 1u);
        order.later([&] { return ++pieces < 20; });
        user.close();
    });
    this->work([&](User& user) {
        user.pause();
        EXPECT_EQ(pieces, 10) << "it went with the window";
        user.close();
    });
}

TEST_F(InputRules, AnErrorInAnEventIsReportedAndTheWindowStaysWithWhatWasTyped) {
    work([&](User& user) {
        user.type("txtName", "Grün");
        user.click("btnRefuse");
        EXPECT_EQ(user.focused(), "txtMenge") << "where something has to be put right";
        EXPECT_EQ(user.error("txtMenge"), base::ownText(base::OwnText::numberMissing, "de"));
        user.focus("txtName");
        EXPECT_NE(user.error("txtMenge"), "") << "it is still wrong";
        user.type("txtMenge", "5");
        user.focus("txtName");
        EXPECT_EQ(user.error("txtMenge"), "");
        user.click("btnFail");
        EXPECT_EQ(user.focused(), "btnFail");
        EXPECT_EQ(display.errors().size(), 2u);
        EXPECT_EQ(display.errors().back(), "der Server ist weg");
        EXPECT_EQ(user.text("txtName"), "Grün");
        user.click("btnOk");
    });
}

TEST_F(InputRules, TheStatusLineSaysTheNewestAndItsOfferIsDoneOnce) {
    int undone = 0;
    bool serverIsGone = true;
    const auto offer = [&] {
        order.status().say("Zeile gelöscht", "&Rückgängig", [&] {
            if (serverIsGone) throw std::runtime_error{"der Server ist weg"};
            ++undone;
        });
    };
    work([&](User& user) {
        order.status().say("Gespeichert");
        user.type("txtName", "x");
        EXPECT_EQ(user.status(), "") << "it was about what was before";
        offer();
        user.type("txtName", "y");
        user.alt(U'r');
        EXPECT_EQ(display.errors().size(), 1U);
        EXPECT_EQ(user.status(), "Zeile gelöscht|&Rückgängig") << "what failed can be tried again";
        serverIsGone = false;
        user.pressStatus();
        EXPECT_EQ(undone, 1);
        EXPECT_EQ(user.status(), "");
        user.alt(U'R');
        EXPECT_EQ(undone, 1);
        offer();
        order.status().say("Gespeichert");
        EXPECT_EQ(user.status(), "Gespeichert");
        user.alt(U'R');
        EXPECT_EQ(undone, 1) << "a newer text takes the offer away";
        order.status().say("Neu", "&Unten", [&] { ++undone; });
        user.alt(U'U');
        EXPECT_EQ(undone, 1) << "the key of a control goes first";
        EXPECT_EQ(order.customersOpened, 1);
        offer();
        user.type("txtDatum", "99");
        user.alt(U'R');
        EXPECT_EQ(undone, 1) << "what stands in the box is checked first";
        user.type("txtDatum", "");
        offer();
        user.close();
    });
    work([](User& user) {
        EXPECT_EQ(user.status(), "") << "it was offered for that visit";
        user.close();
    });
}

TEST_F(InputRules, HandlersAreCalledInTheOrderThatIsSaid) {
    std::string calls;
    const auto called = [&calls](char name) { return [&calls, name] { calls += name; }; };
    ui::Handlers<void()> handlers;
    EXPECT_FALSE(handlers);
    handlers(); // nobody is told
    handlers.before(called('b'));
    handlers.after(called('y'));
    handlers = called('m');
    handlers.before(called('a'));
    handlers.after(called('z'));
    handlers();
    EXPECT_EQ(std::exchange(calls, ""), "abmyz");
    handlers = called('M');
    handlers();
    EXPECT_EQ(std::exchange(calls, ""), "abMyz") << "the owner's handler takes the place of the former one";

    ui::Handlers<bool()> questions;
    EXPECT_TRUE(questions()) << "nobody objects";
    const auto answers = [&](char name, bool answer) {
        return [=] {
            called(name)();
            return answer;
        };
    };
    questions = answers('m', false);
    questions.before(answers('b', true));
    questions.after(answers('y', true));
    EXPECT_FALSE(questions());
    EXPECT_EQ(calls, "bm") << "behind a refusal nobody is asked";
}

TEST_F(InputRules, ClosingCanBeRefused) {
    order.mayClose = false;
    work([&](User& user) {
        user.close();
        user.key(Key::escape);
        user.click("btnOk");
        EXPECT_TRUE(user.window().loaded());
        order.mayClose = true;
        user.close();
    });
}

TEST_F(InputRules, GridsAndListsAreWorkedByKeys) {
    struct Lists final : ui::Form {
        Lists() : Form("Lists") {
            grid.setColumns({{.caption = "A"}, {.caption = "B"}});
            for (int i = 0; i < 20; ++i)
                grid.addRow({std::to_string(i), "b"});
            grid.onCurrentChange = [this] { moved += std::to_string(grid.currentRow()) + " "; };
            grid.onDoubleClick = [this] { chosen = grid.currentRow(); };
            for (const char* unit : {"Fm", "Rm", "Stück"})
                combo.add(unit);
            for (int i = 0; i < 20; ++i)
                list.add(std::to_string(i));
            combo.onChange = [this] { chosenUnit = combo.selectedText(); };
            setLayout(ui::column({grid, combo, list}));
        }
        ui::Grid grid{*this, "grid", 5};
        ui::ComboBox combo{*this, "combo"};
        ui::ListBox list{*this, "list", 40, 5};
        std::string moved;
        std::string chosenUnit;
        int chosen = -1;
    } lists;
    display.onWindow("Lists", [&](User& user) {
        for (const Key key : {Key::down, Key::down, Key::pageDown, Key::up})
            user.key(key);
        user.key({.key = Key::end, .ctrl = true});
        user.key(Key::down);
        user.key({.key = Key::home, .ctrl = true});
        EXPECT_EQ(lists.moved, "0 1 6 5 19 0 ") << "the last row has none below it";
        user.key(Key::enter);
        EXPECT_EQ(lists.chosen, 0);
        user.key(Key::tab);
        user.key(Key::down);
        user.key(Key::down);
        EXPECT_EQ(lists.chosenUnit, "Rm");
        user.key(Key::tab);
        user.key(Key::down);
        user.key(Key::pageDown);
        EXPECT_EQ(lists.list.selectedText(), "5") << "a page is what is seen at once";
        user.close();
    });
    display.showModal(lists);
}

TEST_F(InputRules, AHeadingIsPressedWithThePointerOrByKeysOnceTheBoxMayBeLeft) {
    struct Table final : ui::Form {
        Table() : Form("Table", "Tabelle") {
            grid.setColumns({{"Art"}, {"Menge"}});
            grid.setRows({{"Fichte", "1"}});
            grid.onHeadingClick = [this](int column) { pressed += std::to_string(column); };
            box.onLeave = [this] { return !box.text().empty(); };
            setLayout(ui::column({box, grid}));
        }
        ui::TextBox box{*this, "box"};
        ui::Grid grid{*this, "grid", 5};
        std::string pressed;
    } table;
    ui::Desktop desktop{display, display};
    desktop.runModal(table, [&]() -> ui::Event {
        desktop.dispatch(ui::HeadingEvent{&table.grid, 1});
        EXPECT_EQ(table.pressed, "") << "the box keeps the focus";
        table.box.setText("da");
        desktop.dispatch(ui::HeadingEvent{&table.grid, 1});
        EXPECT_EQ(table.focused(), &table.grid);
        table.grid.setCurrent(0, 0);
        desktop.dispatch(ui::KeyDownEvent{{.key = Key::enter, .ctrl = true}});
        EXPECT_EQ(table.pressed, "10");
        table.grid.setEnabled(false);
        desktop.dispatch(ui::HeadingEvent{&table.grid, 0});
        EXPECT_EQ(table.pressed, "10");
        return ui::CloseEvent{};
    });
}

} // namespace
} // namespace tellurix::tests
