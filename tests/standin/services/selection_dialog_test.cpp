#include "module/base/text.h"
#include "module/ui/controls/ComboBox.h"
#include "standin/services/selection/SelectionExpression.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

class SelectionDialog : public ServicesTest {
protected:
    /// The dialog on price line 1, whose stored value is `stored`; "cancelled" when it was.
    std::string selected(const std::string& stored, const ScriptedDisplay::Script& script) {
        const std::string literal = stored.empty() ? "NULL" : "'" + base::replaceAll(stored, "'", "''") + "'";
        session.connection->execute("UPDATE VERTRAG_PREISE SET SELEKTION_VALUE = " + literal +
                                    " WHERE ID = 1");
        display.onWindow("F_Selection", script);
        return host.selectionDialog.select(session, "1VERTP", "R", "", "").value_or("cancelled");
    }
};

/// Goes down in a list until it shows the text.
void choose(User& user, const std::string& list, const std::string& text) {
    user.focus(list);
    user.key(Key::home);
    auto& box = user.control<ui::ComboBox>(list);
    for (std::size_t i = 0; i < box.items().size() && box.selectedText() != text; ++i)
        user.key(Key::down);
    EXPECT_EQ(box.selectedText(), text) << list;
}

/// Marks codes of the value list by their letters.
void mark(User& user, const std::vector<std::string>& codes) {
    user.focus("grdValues");
    for (const std::string& code : codes) {
        for (int tries = 0; tries < 9; ++tries) {
            user.type(code.substr(0, 1));
            const ui::Grid& grid = user.grid("grdValues");
            if (grid.cell(grid.currentRow(), 1) == code) break;
        }
        user.key(Key::space);
    }
}

TEST_F(SelectionDialog, BuildsASelectionByKeyboardAlone) {
    const std::string value = selected("", [](User& user) {
        EXPECT_EQ(user.focused(), "btnAdd");
        EXPECT_FALSE(user.usable("cboAttribute"));
        EXPECT_EQ(user.text("txtSentence"), "Keine Einschränkung");
        user.key(Key::space); // a new condition, on the species
        EXPECT_EQ(user.focused(), "cboAttribute");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "cboComparison");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "grdValues");
        user.type("f");
        user.key(Key::space);
        user.type("k");
        user.key(Key::space);
        EXPECT_EQ(user.text("txtSentence"), "Holzart FI oder KI");
        user.alt(U'n'); // the next one
        choose(user, "cboAttribute", "Länge (m)");
        choose(user, "cboComparison", "zwischen");
        user.alt(U'a');
        EXPECT_EQ(user.focused(), "txtFrom");
        user.type("4,5");
        user.key(Key::enter);
        user.type("6");
        EXPECT_EQ(user.text("txtSentence"), "Holzart FI oder KI und Länge (m) von 4,5 bis 6");
        EXPECT_EQ(user.grid("grdConditions").cell(1, 3), "4,5 – 6");
        user.alt(U'b');
    });
    EXPECT_EQ(value, "83 IN ('FI', 'KI') ;94 BETWEEN 4.5 AND 6 ;");
}

TEST_F(SelectionDialog, WritesWhatWasChosen) {
    struct Case {
        const char* rule;
        const char* stored;
        ScriptedDisplay::Script script;
        const char* value;
    };
    const auto add = [](User& user, const std::string& attribute, const std::string& comparison) {
        user.click("btnAdd");
        choose(user, "cboAttribute", attribute);
        choose(user, "cboComparison", comparison);
    };
    const Case cases[] = {
        {"taken over untouched it is the same", "83 NOT IN ('LA') ;OR 93 >= '2b' ;94 IN (4.50) ;",
         [](User&) {}, "83 NOT IN ('LA') ;OR 93 >= '2b' ;94 IN (4.50) ;"},
        {"the quick form in the quick selection's order", "94 IN (5) ;",
         [&](User& user) {
             add(user, "Holzsorte", "ist");
             mark(user, {"ST", "B"});
         },
         "87 IN ('ST', 'B') ;94 IN (5) ;"},
        {"an exclusion as an alternative", "83 IN ('FI') ;",
         [&](User& user) {
             add(user, "Güteklasse", "ist nicht");
             mark(user, {"CX", "D"});
             choose(user, "cboJoiner", "oder");
             EXPECT_EQ(user.text("txtSentence"), "Holzart FI oder Güteklasse nicht CX oder D");
         },
         "83 IN ('FI') ;OR 90 NOT IN ('CX', 'D') ;"},
        {"classes from one on", "",
         [&](User& user) {
             add(user, "Stärkeklasse", "mindestens");
             choose(user, "cboFrom", "2b");
         },
         "93 >= '2b' ;"},
        {"from at least to at most the limit stays", "94 >= 4.5 ;",
         [](User& user) {
             choose(user, "cboComparison", "höchstens");
             EXPECT_EQ(user.text("txtTo"), "4,5");
         },
         "94 <= 4.5 ;"},
        {"lengths with comma or point, between blanks or semicolons", "",
         [&](User& user) {
             add(user, "Länge (m)", "ist");
             user.type("txtLengths", "4,5; 5 6.25, 7;");
         },
         "94 IN (4.5, 5, 6.25, 7) ;"},
        {"a stored length can be read back and changed", "94 IN (4.5, 5) ;",
         [](User& user) {
             EXPECT_EQ(user.text("txtLengths"), "4,5; 5");
             user.type("txtLengths", user.text("txtLengths") + "; 6");
         },
         "94 IN (4.5, 5, 6) ;"},
        {"marks of the stored codes; a disabled one stays until it is unmarked", "83 IN ('ES', 'FI') ;",
         [](User& user) {
             mark(user, {"FI", "TA"});
         },
         "83 IN ('ES', 'TA') ;"},
        {"Del removes a condition, and the next one starts the selection", "83 IN ('FI') ;OR 87 IN ('B') ;",
         [](User& user) {
             user.focus("grdConditions");
             user.key(Key::del);
             EXPECT_FALSE(user.usable("cboJoiner"));
         },
         "87 IN ('B') ;"},
        {"without conditions it is empty", "83 IN ('FI') ;", [](User& user) { user.click("btnRemove"); }, ""},
        {"another attribute drops the values", "83 IN ('FI') ;",
         [](User& user) {
             choose(user, "cboAttribute", "Holzsorte");
             mark(user, {"L"});
         },
         "87 IN ('L') ;"},
        {"values of one condition never come up in another", "83 IN ('FI') ;87 IN ('B') ;",
         [](User& user) {
             choose(user, "cboAttribute", "Güteklasse");
             choose(user, "cboAttribute", "Holzart");
             user.select("grdConditions", 1);
             choose(user, "cboAttribute", "Holzart");
             mark(user, {"KI"});
         },
         "AND 83 IN ('FI') ;AND 83 IN ('KI') ;"},
        {"one attribute twice is not left to the quick selection", "83 IN ('FI') ;",
         [&](User& user) {
             add(user, "Holzart", "ist");
             mark(user, {"KI"});
         },
         "AND 83 IN ('FI') ;AND 83 IN ('KI') ;"},
    };
    for (const Case& c : cases) {
        const std::string value = selected(c.stored, [&](User& user) {
            c.script(user);
            user.click("btnOk");
        });
        EXPECT_EQ(value, c.value) << c.rule;
        EXPECT_EQ(standin::SelectionExpression::parse(value).print(), value) << c.rule;
    }
}

TEST_F(SelectionDialog, AnUnfinishedConditionKeepsItOpen) {
    struct Case {
        const char* stored;
        ScriptedDisplay::Script script;
        const char* message;
        const char* focused;
    };
    const auto from = [](const char* text) {
        return [text](User& user) {
            choose(user, "cboComparison", "zwischen");
            user.type("txtFrom", text);
            user.type("txtTo", "4");
        };
    };
    const Case cases[] = {
        {"87 IN ('B') ;", [](User& user) { user.click("btnAdd"); }, "Bedingung 2, Holzart: Es fehlt",
         "grdValues"},
        {"94 >= 4 ;", [](User& user) { user.type("txtFrom", "x' OR 1=1"); }, "„x' OR 1=1“ ist keine Länge",
         "txtFrom"},
        {"94 >= 4 ;", [](User& user) { user.type("txtFrom", ""); }, "Es fehlt noch ein Wert", "txtFrom"},
        {"94 IN (4) ;", [](User& user) { user.type("txtLengths", "4; 4.5.6"); }, "„4.5.6“ ist keine Länge",
         "txtLengths"},
        {"94 >= 4 ;", from("6,5"), "größer als der zweite", "txtFrom"},
        {"93 <= '2b' ;", [](User& user) { choose(user, "cboComparison", "zwischen"); },
         "Es fehlt noch ein Wert", "cboFrom"},
    };
    for (const Case& c : cases) {
        const std::string value = selected(c.stored, [&](User& user) {
            c.script(user);
            display.onMessage(c.message, ui::Answer::ok, "Selektion");
            user.click("btnOk");
            EXPECT_EQ(user.focused(), c.focused) << c.message;
            EXPECT_NE(user.error(c.focused), "");
            user.click("btnCancel");
        });
        EXPECT_EQ(value, "cancelled") << c.message;
    }
}

TEST_F(SelectionDialog, AValueThatCannotBeReadIsToldAndStays) {
    display.onMessage("83 LIKE 'F%'", ui::Answer::ok, "Selektion");
    EXPECT_EQ(selected("83 LIKE 'F%' ;",
                       [](User& user) {
                           EXPECT_TRUE(user.grid("grdConditions").rows().empty());
                           user.key(Key::escape);
                       }),
              "cancelled");
    EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 1"), "83 LIKE 'F%' ;");
}

TEST_F(SelectionDialog, ReadsTheLineOfItsKey) {
    display.onWindow("F_Selection", [](User& user) {
        EXPECT_EQ(user.text("txtSentence"), "Holzart nicht FI oder KI");
        user.click("btnOk");
    });
    EXPECT_EQ(host.selectionDialog.select(session, "5VERTM", "R", "", ""), "83 NOT IN ('FI', 'KI') ;");
    for (const char* key : {"VERTP", "5", "5VERTX", "5 OR 1=1VERTP"})
        EXPECT_THROW(host.selectionDialog.select(session, key, "R", "", ""), std::invalid_argument) << key;
}

TEST_F(SelectionDialog, TellsAlternativesWithBrackets) {
    const std::pair<const char*, const char*> cases[] = {
        {"83 IN ('FI') ;94 <= 4.5 ;OR 87 IN ('L') ;93 >= '2b' ;",
         "(Holzart FI und Länge (m) höchstens 4,5) oder (Holzsorte L und Stärkeklasse mindestens 2b)"},
        {"83 IN ('FI', 'KI', 'TA') ;OR 87 NOT IN ('L') ;OR 94 IN (4, 5) ;90 IN ('A') ;",
         "Holzart FI, KI oder TA oder Holzsorte nicht L oder (Länge (m) 4 oder 5 und Güteklasse A)"},
    };
    for (const auto& [stored, sentence] : cases) {
        selected(stored, [&, sentence = sentence](User& user) {
            EXPECT_EQ(user.text("txtSentence"), sentence);
            user.key(Key::escape);
        });
    }
}

TEST_F(SelectionDialog, SpeaksEnglish) {
    session.language = "en";
    selected("83 NOT IN ('FI') ;", [&](User& user) {
        EXPECT_EQ(user.text("txtSentence"), "Species not FI");
        EXPECT_EQ(user.grid("grdConditions").columns()[1].caption, "Attribute");
        for (const ui::Control* control : user.window().controls()) {
            const bool hasCaption =
                control->kind() == ui::ControlKind::label || control->kind() == ui::ControlKind::button;
            const std::string key = "F_Selection." + control->name() + ".caption";
            EXPECT_TRUE(!hasCaption || catalogue.find("en", key) != nullptr) << key;
        }
        user.key(Key::escape);
    });
}

} // namespace
} // namespace tellurix::tests
