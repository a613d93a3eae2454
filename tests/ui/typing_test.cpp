#include "module/base/text.h"
#include "tests/ui/InputTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

struct Typing : InputTest {};

TEST_F(Typing, ABoxKnowsWhetherTheUserTouchedIt) {
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

TEST_F(Typing, BoxesAreFullAndALongTextComesAtOnce) {
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

TEST_F(Typing, TheFocusSelectsTheWholeTextSoThatTypingReplacesIt) {
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

TEST_F(Typing, ADateIsRewrittenAndABadOneKeepsTheFocusAndTheText) {
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

TEST_F(Typing, ANumberBoxTakesWhatItsMaskCanShow) {
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

TEST_F(Typing, WhatIsNotTakenSaysWhatWouldBe) {
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

TEST_F(Typing, CtrlZTakesBackWhatWasTypedInOneGo) {
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

TEST_F(Typing, WhatADisplayEditedByItselfIsWhatCouldHaveBeenTyped) {
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

} // namespace
} // namespace tellurix::tests
