#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

class CodeList : public ServicesTest {
protected:
    /// The answer of the list after the user worked with it.
    std::string chosen(const std::string& text, const ScriptedDisplay::Script& script,
                       const std::string& key = "HOLZART_GRID", const std::string& mode = "01") {
        display.onWindow("F_LookupGrid", script);
        return host.lookupGridDialog.choose(session, host.settings.text(session, key), "Ha", "", mode, text);
    }
};

std::string column(const ui::Grid& grid, int index) {
    std::string cells;
    for (int row = 0; row < static_cast<int>(grid.rows().size()); ++row)
        cells += grid.cell(row, index) + ",";
    return cells;
}

TEST_F(CodeList, OffersWhatIsNotDisabled) {
    const std::pair<const char*, const char*> lists[] = {{"HOLZART_GRID", "AH,BU,DG,EI,FI,KI,LA,TA,"},
                                                         {"HOLZSORTE_GRID", "B,BR,F,L,S,ST,W,"},
                                                         {"GUETEKLASSE_GRID", "A,B,C,CX,D,"},
                                                         {"STKL_GRID", "1a,1b,2a,2b,3a,3b,4,5,"}};
    for (const auto& [key, codes] : lists) {
        chosen(
            "",
            [&, codes = codes](User& user) {
                EXPECT_EQ(user.window().title(), "Ha");
                EXPECT_EQ(column(user.grid("grdList"), 1), codes);
                user.key(Key::escape);
            },
            key);
    }
    EXPECT_THROW(host.lookupGridDialog.choose(session, "VERTRAG_GRID", "", "", "01", ""),
                 std::invalid_argument);
}

TEST_F(CodeList, AnswersTheMarkedCodes) {
    struct Case {
        const char* rule;
        const char* text;
        ScriptedDisplay::Script script;
        const char* answer;
    };
    const Case cases[] = {
        {"letters go to a code, Space marks it, Enter takes over", "",
         [](User& user) {
             user.type("k");
             user.key(Key::space);
             user.type("f");
             user.key(Key::space);
             user.key(Key::enter);
         },
         "KI,FI"},
        {"the same letter goes on to the next code", "",
         [](User& user) {
             user.key(Key::down);
             user.key(Key::down);
             user.type("ll");
             user.key(Key::space);
             user.click("btnOk");
         },
         "LA"},
        {"what is chosen so far is marked, in any case of its letters", "fi, KI",
         [](User& user) {
             EXPECT_EQ(column(user.grid("grdList"), 0), "☐,☐,☐,☐,☑,☑,☐,☐,");
             EXPECT_EQ(user.grid("grdList").currentRow(), 4) << "starts on the first mark";
             user.key(Key::down);
             user.key(Key::space);
             user.select("grdList", 7, 1);
             user.doubleClick("grdList");
             user.key(Key::enter);
         },
         "fi,TA"},
        {"a code that is not offered any more stays until its mark is taken away", "ES,FI",
         [](User& user) {
             EXPECT_EQ(user.grid("grdList").cell(8, 1), "ES");
             EXPECT_EQ(user.grid("grdList").cell(8, 2), "(nicht im Angebot)");
             user.key(Key::space);
             user.key(Key::enter);
         },
         "ES"},
        {"all marks can be taken away", "FI",
         [](User& user) {
             user.key(Key::space);
             user.key(Key::enter);
         },
         ""},
        {"Esc leaves the text as it was", "FI, KI",
         [](User& user) {
             user.key(Key::space);
             user.key(Key::escape);
         },
         "FI, KI"},
    };
    display.onMessage("Verwerfen?", ui::Answer::yes);
    for (const Case& c : cases)
        EXPECT_EQ(chosen(c.text, c.script), c.answer) << c.rule;
}

TEST_F(CodeList, WithOneChoiceTheNextMarkReplacesTheFirst) {
    const auto script = [](User& user) {
        user.key(Key::space);
        user.key(Key::down);
        user.key(Key::space);
        user.key(Key::enter);
    };
    EXPECT_EQ(chosen("", script, "HOLZART_GRID", "00"), "BU");
}

} // namespace
} // namespace tellurix::tests
