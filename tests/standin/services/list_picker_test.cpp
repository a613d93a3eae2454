#include "standin/services/pickers/lists/F_ListPicker.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using standin::F_ListPicker;
using ui::Key;

const F_ListPicker::List units{
    .headings = {"Kurz", "Bezeichnung"},
    .entries = {{"FM", "Festmeter"}, {"RM", "Raummeter"}, {"SRM", "Schüttraummeter"}, {"ST", "Stück"}}};
const F_ListPicker::CountTexts countTexts{.all = "Einträge: {}", .some = "{} von {}"};

/// The answer of a list that was opened with `current`; "none" when it was cancelled.
std::string chosenText(const std::string& current, const ScriptedDisplay::Script& script) {
    ScriptedDisplay display;
    F_ListPicker picker{"Einheit", units, countTexts, current};
    display.onWindow("F_ListPicker", script);
    display.showModal(picker);
    return picker.chosen() ? picker.chosen()->front() : "none";
}

std::string firstColumn(const ui::Grid& grid) {
    std::string entries;
    for (const ui::Grid::Row& row : grid.rows())
        entries += row.front() + " ";
    return entries;
}

TEST(ListPicker, NarrowsToTheEntriesThatHaveAllWords) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* entries;
    };
    const Case cases[] = {
        {"nothing typed shows all", "", "FM RM SRM ST "},
        {"a word in the answer", "SRM", "SRM "},
        {"a word in another column, in small letters", "raum", "RM SRM "},
        {"small and capital umlauts are the same", "SCHÜTT", "SRM "},
        {"all words count, whatever the column", "st ück", "ST "},
        {"a word that no entry has", "raum x", ""},
        {"a wildcard stands for itself", "%", ""},
    };
    chosenText("", [&](User& user) {
        for (const Case& c : cases) {
            user.type("txtFilter", c.typed);
            EXPECT_EQ(firstColumn(user.grid("grdList")), c.entries) << c.rule;
        }
        user.key(Key::escape);
    });
}

TEST(ListPicker, AnswersWhatIsChosen) {
    struct Case {
        const char* rule;
        const char* current;
        ScriptedDisplay::Script script;
        const char* answer;
    };
    const auto enter = [](User& user) { user.key(Key::enter); };
    const Case cases[] = {
        {"starts on the first entry", "", enter, "FM"},
        {"starts on the current text in any case", "srm", enter, "SRM"},
        {"starts narrowed by a part of an entry", "Schütt", enter, "SRM"},
        {"starts with the whole list for an unknown text", "Bund", enter, "FM"},
        {"the arrows go through the list while typing", "",
         [](User& user) {
             user.type("txtFilter", "raum");
             user.key(Key::down);
             user.key(Key::enter);
         },
         "SRM"},
        {"a double click chooses", "",
         [](User& user) {
             user.select("grdList", 3, 1);
             user.doubleClick("grdList");
         },
         "ST"},
        {"the access key of the button", "RM", [](User& user) { user.alt(U'b'); }, "RM"},
        {"Enter on an empty list chooses nothing", "FM",
         [](User& user) {
             user.type("txtFilter", "xyz");
             user.key(Key::enter);
             user.key(Key::escape);
         },
         "none"},
        {"Esc cancels", "FM", [](User& user) { user.key(Key::escape); }, "none"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(chosenText(c.current, c.script), c.answer) << c.rule;
}

TEST(ListPicker, ALongListShowsItsStartAndReachesTheRestByNarrowing) {
    F_ListPicker::List list{.headings = {"Nummer"}, .entries = {}};
    for (int i = 1; i <= 700; ++i)
        list.entries.push_back({"V" + std::to_string(i)});
    ScriptedDisplay display;
    F_ListPicker picker{"Vertrag", list, countTexts, "V650"};
    display.onWindow("F_ListPicker", [](User& user) {
        EXPECT_EQ(user.caption("lblCount"), "Einträge: 1") << "the current text is beyond what is shown";
        user.type("txtFilter", "");
        EXPECT_EQ(user.caption("lblCount"), "500 von 700");
        EXPECT_EQ(user.grid("grdList").rows().size(), F_ListPicker::shownAtMost);
        user.type("txtFilter", "v70");
        user.key(Key::down);
        user.key(Key::enter);
    });
    display.showModal(picker);
    EXPECT_EQ(picker.chosen()->front(), "V700");
}

} // namespace
} // namespace tellurix::tests
