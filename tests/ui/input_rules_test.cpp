#include "module/base/text.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/date_box.h"
#include "module/ui/input/number_box.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using ui::Key;

/// A screen with a little of everything that the rules of input speak of.
class Order final : public ui::Form {
public:
    Order() : Form("Order", "Bestellung") {
        ui::makeDateBox(
            txtDatum, [] { return base::Date{std::chrono::year{2025} / 12 / 30}; },
            [this] {
                ++invalidDates;
                txtDatum.setError("TT.MM.JJJJ");
            });
        ui::makeNumberBox(txtMenge, "#####0.00", base::Locale::german());
        txtKunde.onPick = [this] {
            ++picks;
            txtKunde.setText("Maier");
        };
        txtGesperrt.setLocked(true);
        btnOk.onClick = [this] { unload(); };
        btnFail.onClick = [] { throw std::runtime_error{"der Server ist weg"}; };
        btnRefuse.onClick = [this] { throw ui::RefusedInput{txtMenge, {{base::OwnText::numberMissing}}}; };
        btnKunden.onClick = [this] { ++customersOpened; };
        btnCancel.onClick = [this] { unload(); };
        btnCancel.setCausesValidation(false);
        setCancelButton(btnCancel);
        setLayout(ui::column({
            ui::field(lblName, txtName),
            ui::field(lblDatum, txtDatum),
            ui::field(lblMenge, txtMenge),
            ui::field(lblKunde, txtKunde),
            txtGesperrt,
            ui::frame(frmExtra, {chkExtra}),
            btnKunden,
            btnFail,
            btnRefuse,
            btnNeu,
            btnOk,
            btnCancel,
        }));
    }

    int invalidDates = 0;
    int picks = 0;
    int customersOpened = 0;
    bool mayClose = true;

    ui::Label lblName{*this, "lblName", "&Name"};
    ui::TextBox txtName{*this, "txtName"};
    ui::Label lblDatum{*this, "lblDatum", "Datum"};
    ui::TextBox txtDatum{*this, "txtDatum"};
    ui::Label lblMenge{*this, "lblMenge", "&Menge"};
    ui::TextBox txtMenge{*this, "txtMenge"};
    ui::Label lblKunde{*this, "lblKunde", "Ku&nde"};
    ui::TextBox txtKunde{*this, "txtKunde"};
    ui::TextBox txtGesperrt{*this, "txtGesperrt"};
    ui::Frame frmExtra{*this, "frmExtra", "Extra"};
    ui::CheckBox chkExtra{*this, "chkExtra", "E&xtra"};
    ui::Button btnKunden{*this, "btnKunden", "K&unden"};
    ui::Button btnFail{*this, "btnFail", "Fehler"};
    ui::Button btnRefuse{*this, "btnRefuse", "A&&u"};
    ui::Button btnNeu{*this, "btnNeu", "&Neu"};
    ui::Button btnOk{*this, "btnOk", "Ok"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};

private:
    bool queryUnload() override { return mayClose; }
};

class InputRules : public testing::Test {
protected:
    void work(const ScriptedDisplay::Script& script) {
        display.onWindow("Order", script);
        display.showModal(order);
    }

    ScriptedDisplay display;
    Order order;
};

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

TEST_F(InputRules, ABoxKnowsWhetherTheUserTouchedIt) {
    struct Case {
        const char* rule;
        std::function<void(User&)> act;
        bool touched;
    };
    const Case cases[] = {
        {"gone through", [](User& user) { user.key(Key::tab); }, false},
        {"typed as it was", [](User& user) { user.type("12,50"); }, true},
        {"pasted as it was", [](User& user) { user.paste("txtMenge", "12,50"); }, true},
        {"something taken out", [](User& user) { user.key(Key::del); }, true},
        {"what the filter drops", [](User& user) { user.type("x"); }, false},
        {"a box left empty has nothing to take out",
         [](User& user) {
             user.control<ui::TextBox>("txtMenge").show("");
             user.key(Key::backspace);
         },
         false},
    };
    work([&](User& user) {
        for (const Case& c : cases) {
            order.txtMenge.show("12,50");
            user.focus("txtMenge");
            order.txtMenge.selectAll();
            c.act(user);
            EXPECT_EQ(order.txtMenge.touched(), c.touched) << c.rule;
        }
        user.close();
    });
}

TEST_F(InputRules, BoxesAreFullAndALongTextComesAtOnce) {
    int changes = 0;
    order.txtName.onKeyPress = [](char32_t& key) {
        if (key == U'x') key = 0;
    };
    order.txtName.onChange = [&] { ++changes; };
    work([&](User& user) {
        user.paste("txtName", std::string(20'000, 'a') + "x" + std::string(10, 'b'));
        EXPECT_EQ(user.text("txtName"), std::string(20'000, 'a') + std::string(10, 'b'));
        EXPECT_EQ(changes, 1);
        order.txtName.setMaxLength(3);
        user.key(Key::tab);
        user.type("txtName", "abcd");
        EXPECT_EQ(user.text("txtName"), "abc") << "a full selected box gives way to what is typed";
        user.type("txtDatum", "01.02.20251");
        EXPECT_EQ(user.text("txtDatum"), "01.02.2025");
        EXPECT_EQ(order.txtMenge.maxLength(), 9);
        user.key(Key::escape);
    });
}

TEST_F(InputRules, TheFocusSelectsTheWholeTextSoThatTypingReplacesIt) {
    order.txtName.setText("alt");
    work([&](User& user) {
        user.type("neü");
        EXPECT_EQ(user.text("txtName"), "neü");
        user.key(Key::backspace);
        EXPECT_EQ(user.text("txtName"), "ne");
        user.key(Key::tab);
        user.key(Key::tab, true);
        user.key(Key::del);
        EXPECT_EQ(user.text("txtName"), "");
        user.type("txtGesperrt", "x");
        EXPECT_EQ(user.text("txtGesperrt"), "") << "a locked box takes no keys";
        user.close();
    });
}

TEST_F(InputRules, ADateIsRewrittenAndABadOneKeepsTheFocusAndTheText) {
    work([&](User& user) {
        user.type("txtDatum", "5.6.25");
        user.key(Key::tab);
        EXPECT_EQ(user.text("txtDatum"), "05.06.2025");
        for (const auto& [typed, date] :
             std::vector<std::pair<const char*, const char*>>{{"15.1.", "15.01.2025"},
                                                              {"1.12", "01.12.2025"},
                                                              {"h", "30.12.2025"},
                                                              {"Heute", "30.12.2025"},
                                                              {"+7", "06.01.2026"},
                                                              {"-30", "30.11.2025"},
                                                              {"150125", "15.01.2025"}}) {
            user.type("txtDatum", typed);
            user.focus("txtName");
            EXPECT_EQ(user.text("txtDatum"), date) << typed;
        }
        user.type("txtDatum", "31.02.2025x");
        EXPECT_EQ(user.text("txtDatum"), "31.02.2025") << "letters are no part of a date";
        user.key(Key::tab);
        user.click("btnOk");
        user.alt(U'm');
        EXPECT_EQ(user.focused(), "txtDatum");
        EXPECT_EQ(user.text("txtDatum"), "31.02.2025");
        EXPECT_EQ(order.invalidDates, 3) << "the click on Ok was not taken either";
        user.type("31.03.");
        EXPECT_EQ(user.error("txtDatum"), "TT.MM.JJJJ") << "until it is right";
        user.key(Key::tab);
        EXPECT_EQ(user.error("txtDatum"), "");
        user.type("txtDatum", "31.02.2025");
        user.click("btnCancel");
    });
    EXPECT_EQ(order.invalidDates, 3) << "nobody has to correct a date in order to cancel";
}

TEST_F(InputRules, ANumberBoxTakesWhatItsMaskCanShow) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* shown;
        const char* left;
    };
    const Case cases[] = {
        {"decimal comma", "12,5", "12,5", "12,50"},
        {"the point is a second way to type it", "12.5", "12,5", "12,50"},
        {"a point between thousands", "1.234,5", "1234,5", "1234,50"},
        {"two of them", "12.345.6", "12345,6", "12345,60"},
        {"a comma is never one", "1,2345", "1,23", "1,23"},
        {"letters and a second comma are dropped", "1a2,3,4", "12,34", "12,34"},
        {"no more decimals than the mask", "1,239", "1,23", "1,23"},
        {"no minus without one in the mask", "-3", "3", "3,00"},
        {"a lone comma is no number and stays", ",", ",", ","},
    };
    work([&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.type("txtMenge", c.typed);
            EXPECT_EQ(user.text("txtMenge"), c.shown);
            user.key(Key::tab);
            EXPECT_EQ(user.text("txtMenge"), c.left);
        }
        user.focus("txtMenge");
        user.control<ui::TextBox>("txtMenge").selectAll();
        user.paste("txtMenge", " 3,1x4 ");
        EXPECT_EQ(user.text("txtMenge"), "3,14") << "pasted characters pass the filter, too";
        user.control<ui::TextBox>("txtMenge").selectAll();
        user.paste("txtMenge", " 1.234,56 ");
        EXPECT_EQ(user.text("txtMenge"), "1234,56") << "the thousands of a copied number are no decimals";
        user.close();
    });
}

TEST_F(InputRules, WhatIsNotTakenSaysWhatWouldBe) {
    struct Case {
        const char* rule;
        const char* box;
        std::function<void(User&)> act;
        const char* says;
    };
    const auto typed = [](const char* text) { return [text](User& user) { user.type(text); }; };
    const auto pasted = [](const char* box, const char* text) {
        return [box, text](User& user) { user.paste(box, text); };
    };
    order.txtName.setMaxLength(5);
    const Case cases[] = {
        {"a letter in a number", "txtMenge", typed("1x"), "Hier passt eine Zahl bis 999999,99"},
        {"until something is taken", "txtMenge", typed("1x2"), ""},
        {"a letter in a date", "txtDatum", typed("x"),
         "Hier passt ein Datum: 15.1.2025, 15.1., h für heute, +7"},
        {"no room", "txtName", typed("abcdef"), "Mehr als 5 Zeichen passen hier nicht"},
        {"a pasted text that is cut", "txtName", pasted("txtName", "Maierhofer"),
         "Nicht alles passt: 5 von 10 Zeichen übernommen"},
        {"or filtered", "txtMenge", pasted("txtMenge", "3 Fm"),
         "Nicht alles passt: 1 von 4 Zeichen übernommen"},
        {"or not taken at all", "txtMenge", pasted("txtMenge", "x"), "Hier passt eine Zahl bis 999999,99"},
        {"what fits says nothing", "txtName", pasted("txtName", "Maier"), ""},
    };
    work([&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.type(c.box, "");
            user.control<ui::TextBox>(c.box).selectAll();
            const int before = user.control<ui::TextBox>(c.box).refusals();
            c.act(user);
            EXPECT_EQ(user.refusal(c.box), c.says);
            EXPECT_GE(user.control<ui::TextBox>(c.box).refusals(), before + (*c.says == '\0' ? 0 : 1));
        }
        user.type("txtMenge", "x");
        user.key(Key::tab);
        EXPECT_EQ(user.refusal("txtMenge"), "") << "the box has been left";
        user.close();
    });
}

TEST_F(InputRules, CtrlZTakesBackWhatWasTypedInOneGo) {
    work([&](User& user) {
        order.txtMenge.show("7,00");
        user.focus("txtMenge");
        user.type("12,5");
        user.key(Key::backspace);
        user.ctrl('Z');
        EXPECT_EQ(user.text("txtMenge"), "7,00");
        EXPECT_EQ(order.txtMenge.selectionLength(), 4) << "as it was before";
        user.type("12");
        order.txtMenge.select(0, 0); // the user has gone elsewhere
        user.type("3");
        EXPECT_EQ(user.text("txtMenge"), "312");
        user.ctrl('Z');
        EXPECT_EQ(user.text("txtMenge"), "12");
        user.ctrl('Z');
        EXPECT_EQ(user.text("txtMenge"), "7,00");
        user.ctrl('Z');
        EXPECT_EQ(user.text("txtMenge"), "7,00") << "there is nothing more";
        user.type("9");
        order.txtMenge.show("8,00");
        user.ctrl('Z');
        EXPECT_EQ(user.text("txtMenge"), "8,00") << "another value is not undone";
        user.type("txtGesperrt", "x");
        user.ctrl('Z');
        user.close();
    });
}

TEST_F(InputRules, WhatADisplayEditedByItselfIsWhatCouldHaveBeenTyped) {
    struct Case {
        const char* rule;
        ui::TextBox& box;
        const char* before;
        const char* edited;
        const char* shown;
    };
    order.txtName.setMaxLength(5);
    order.txtKunde.setLines(3);
    const Case cases[] = {
        {"without a filter it stands", order.txtName, "a", "bär", "bär"},
        {"no more than fits", order.txtName, "abc", "xabcdef", "xabcd"},
        {"a longer text of the program's can be shortened", order.txtName, "abcdefgh", "abcdegh", "abcdegh"},
        {"no line end in a box of one line", order.txtName, "a", "a\nb", "ab"},
        {"line ends in a box of several", order.txtKunde, "a", "a\nb", "a\nb"},
        {"no control characters", order.txtKunde, "a", "a\ab", "ab"},
        {"a stretch taken out of a filtered box", order.txtMenge, "x1234x", "x14x", "x14x"},
        {"the same, beside line ends that are not shown", order.txtMenge, "x\r\n12", "x1", "x1"},
        {"two stretches go through the filter with the rest", order.txtMenge, "x1234x", "x13x", "13"},
        {"as does what comes in", order.txtMenge, "x12", "x1y2,5", "12,5"},
        {"or is as long as before", order.txtMenge, "x12", "y12", "12"},
        {"as a pasted text does", order.txtMenge, "", "1.234,56", "1234,56"},
    };
    ui::Desktop desktop{display, display};
    desktop.runModal(order, [&]() -> ui::Event {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            c.box.setText(c.before);
            desktop.dispatch(ui::TextEditedEvent{&c.box, c.edited, 99, 9});
            EXPECT_EQ(c.box.text(), c.shown);
            const int length = static_cast<int>(base::decodeUtf8(c.shown).size());
            EXPECT_EQ(c.box.selectionStart(), length) << "the caret stands within the text";
            EXPECT_EQ(c.box.selectionLength(), 0);
        }
        order.txtGesperrt.drawn();
        desktop.dispatch(ui::TextEditedEvent{&order.txtGesperrt, "x", 1, 0});
        EXPECT_EQ(order.txtGesperrt.text(), "");
        EXPECT_TRUE(order.txtGesperrt.dirty()) << "the display shows it as it is again";
        return ui::CloseEvent{};
    });
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
