#include "tests/deductions/DeductionsTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

class EditingDeductions : public DeductionsTest {};

TEST_F(EditingDeductions, ValuesAreShownWithTwoDecimals) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {
        {"a lone minus", "-", "0,00"},
        {"nothing", "", "0,00"},
        {"a whole number", "-5", "-5,00"},
        {"the user's decimal character", "2,5", "2,50"},
        {"a point is taken for it", "2.5", "2,50"},
        {"letters are not typed", "1x2", "12,00"},
        {"a second minus is not typed", "--3", "-3,00"},
    };
    edit(2, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.type("TextWert(2)", c.typed);
            user.key(Key::enter);
            EXPECT_EQ(user.text("TextWert(2)"), c.shown);
            EXPECT_EQ(user.focused(), "txtWert(2)") << "Enter goes on";
        }
        const auto before = host.statements.size();
        user.type("TextWert(3)", "1a");
        EXPECT_EQ(sentFrom(before), std::vector<std::string>(2, "SELECT WERT_TEXT FROM ABSCHLAG"))
            << "the column is asked for every key";
        user.replaceText("TextWert(3)", " 7,5 ");
        user.key(Key::tab);
        EXPECT_EQ(user.text("TextWert(3)"), "7,50");
        user.click("btnAbbrechen");
    });
}

TEST_F(EditingDeductions, ReferencesThatAreDoubtfulAreTold) {
    struct Case {
        std::size_t line;
        const char* typed;
        const char* kept;
        const char* warning;
    };
    const Case cases[] = {
        {2, "1,2", "1,2", ""},
        {2, "1,", "1", ""},
        {2, "1, 2,", "1,2", ""}, // blanks are not typed
        {2, "1,,", "1,", ""},    // one comma only
        {2, "a1;", "1", ""},
        {2, "3", "3", "Zeile 3 bezieht sich auf sich selbst."},
        {1, "3", "3", "Zeile 3 steht erst darunter."},
        {4, "4", "4", "Zeile 4 ist leer."},
        {2, "0,17", "0,17", "Eine Zeile 0 gibt es nicht. Eine Zeile 17 gibt es nicht."},
        {2, "99999999999999999999999", "99999999999999999999999",
         "Eine Zeile 99999999999999999999999 gibt es nicht."},
    };
    edit(1, [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.typed);
            user.type(at("txtWert", c.line), c.typed);
            user.key(Key::tab);
            EXPECT_EQ(user.text(at("txtWert", c.line)), c.kept);
            EXPECT_EQ(user.control<ui::TextBox>(at("txtWert", c.line)).warning(), c.warning);
        }
        user.type("txtWert(4)", "4");
        user.type("txtWert(2)", "");
        enter(user, 3, 5, "1");
        enter(user, 4, 5, "1");
        EXPECT_EQ(user.control<ui::TextBox>("txtWert(4)").warning(), "") << "the line is there now";
        user.type("txtWert(1)", "2");
        user.click("btnOk");
    });
    EXPECT_EQ(stored(spruce, "WERT_LINE"), "[NULL][2][NULL][NULL][4]") << "never refused";
}

TEST_F(EditingDeductions, ChoosingAStatisticBeginsTheLine) {
    edit(1, [&](User& user) {
        user.select("CmbStat(3)", 4);
        EXPECT_EQ(line(user, 3), "Zuschlag zertifiziert||0,00||");
        user.select("CmbStat(1)", 4);
        EXPECT_EQ(user.text("TextWert(1)"), "-25,75") << "a value stays";
        EXPECT_FALSE(user.control<ui::Label>("Label1(1)").highlighted()) << "no article any more";
        user.focus("CmbStat(2)");
        user.key(Key::del);
        EXPECT_EQ(user.control<ui::ComboBox>("CmbStat(2)").selected(), 0) << "the empty entry";
        user.select("CmbStat(2)", 13);
        user.click("btnOk");
    });
    EXPECT_EQ(stored(spruce, "STATISTIK,ART_ID"), "[2 | 2][4 | NULL][13 | NULL][4 | NULL]");
    ownTables = {"STATISTIK"};
    host.database.execute("DELETE FROM STATISTIK WHERE STATISTIK_ID = 0");
    edit(1, [&](User& user) {
        user.focus("CmbStat(2)");
        user.key(Key::del);
        EXPECT_EQ(user.control<ui::ComboBox>("CmbStat(2)").selected(), ui::ItemList::none);
        user.click("btnAbbrechen");
    });
}

TEST_F(EditingDeductions, AnArticleFillsItsLine) {
    edit(1, [&](User& user) {
        host.pickedArticle = 0;
        user.click("Command1(0)");
        EXPECT_EQ(host.picks.back(), "WAREN/R/2");
        EXPECT_EQ(line(user, 0), "Rindenabzug|Rindenabzug Fichte|-10,00||*") << "cancelled";
        host.pickedArticle = 3;
        user.click("Command1(3)");
        EXPECT_EQ(host.picks.back(), "WAREN/R/0");
        EXPECT_EQ(host.requests.back(), "1LV/0");
        EXPECT_EQ(line(user, 3), "|Käferholzabschlag|-25,75||*");
        EXPECT_TRUE(user.control<ui::Label>("Label1(3)").highlighted());
        EXPECT_EQ(user.control<ui::Button>("Command2(3)").toolTip(), "83 IN ('FI', 'KI') ;90 IN ('CX') ;");
        host.pickedArticle = 5;
        user.click("Command1(3)");
        EXPECT_EQ(line(user, 3), "|Vermessung je Stück|1,24||") << "an article without a subset";
        host.pickedArticle = 999;
        user.click("Command1(4)");
        EXPECT_EQ(line(user, 4), "||||") << "an article that is gone";
        user.click("btnAbbrechen");
    });
    host.columnWidths["ABSCHLAG.BEZEICH"] = 50;
    edit(2, [&](User& user) {
        host.pickedArticle = 6;
        user.click("Command1(0)");
        EXPECT_EQ(user.text("TextBez(0)"), "Zuschlag für zertifiziertes Rundholz aus bäuerlich")
            << "as much as the column takes";
        user.type("TextBez(0)", std::string(60, 'x'));
        EXPECT_EQ(user.text("TextBez(0)"), std::string(50, 'x'));
        user.click("btnAbbrechen");
    });
}

TEST_F(EditingDeductions, SubsetsAreEditedTickedAndCleared) {
    std::optional<std::string> answer;
    host.onSelectionEdit = [&](const std::string&) { return answer; };
    edit(1, [&](User& user) {
        user.click("Command2(0)");
        EXPECT_EQ(host.edits.back(), "83 IN ('FI') ;/R");
        EXPECT_TRUE(user.checked("Check1(0)")) << "cancelled";
        user.click("Check1(0)");
        EXPECT_FALSE(user.checked("Check1(0)"));
        user.click("Check1(0)");
        EXPECT_EQ(host.edits.back(), "/R") << "clearing the tick removed it";
        EXPECT_FALSE(user.checked("Check1(0)")) << "a tick without a subset";
        answer = "87 IN ('L') ;";
        user.click("Check1(0)");
        EXPECT_TRUE(user.checked("Check1(0)"));
        answer = "  ";
        user.click("Command2(1)");
        EXPECT_FALSE(user.checked("Check1(1)"));
        answer = "90 IN ('A') ;";
        user.click("Command2(2)"); // position 13, whose subset goes with the save
        user.click("btnOk");
    });
    EXPECT_EQ(stored(spruce, "STATISTIK,SUBSET_DEF"), "[2 | 87 IN ('L') ;][3 | NULL][13 | NULL]");
}

TEST_F(EditingDeductions, AModelReplacesTheLines) {
    host.modelLines[0] = {.statistic = 5, .designation = "Fracht", .value = "8.5", .article = 1};
    host.modelLines[1] = {.statistic = 2, .value = "-1", .references = "1", .subset = "83 IN ('FI') ;"};
    const std::string model = edit(1, [&](User& user) {
        EXPECT_EQ(user.items("CmbModel"), "Eins\nZwei\nSägewerk Standard\n");
        user.select("CmbModel", 1);
        EXPECT_EQ(host.modelCalls.back(), "copy/ABSCHLAG/2");
        EXPECT_EQ(line(user, 0), "Fracht|Fracht|8,50||");
        EXPECT_EQ(line(user, 1), "Rindenabzug||-1,00|1|*");
        EXPECT_EQ(line(user, 2), "||||") << "the lines before are gone";
        EXPECT_TRUE(user.control<ui::Label>("Label1(0)").highlighted());
        EXPECT_FALSE(user.control<ui::Label>("Label1(1)").highlighted());
        user.type("TextBez(1)", "Rinde");
        host.display.onMessage("durch das Modell „Eins“ ersetzt", Answer::no);
        user.select("CmbModel", 0);
        EXPECT_EQ(user.control<ui::ComboBox>("CmbModel").selectedText(), "Zwei");
        EXPECT_EQ(user.text("TextBez(1)"), "Rinde") << "what was typed stays";
        user.click("btnOk");
    });
    EXPECT_EQ(model, "Zwei");
    EXPECT_EQ(stored(spruce, "BEZEICH,WERT_TEXT,SUBSET_DEF,ART_ID,ABS_MODEL"),
              "[Fracht | 8,50 | NULL | 1 | Zwei][Rinde | -1,00 | 83 IN ('FI') ; | NULL | Zwei]");
    host.articles = true;
    EXPECT_EQ(edit(1,
                   [&](User& user) {
                       EXPECT_EQ(user.items("CmbModel"), "Eins\nZwei\n");
                       user.select("CmbModel", 0);
                       EXPECT_EQ(host.modelCalls.back(), "copy/ABSCHLAG_A/1")
                           << "where the host works on articles";
                       user.click("btnAbbrechen");
                   }),
              "Zwei");
    edit(
        10, [&](User& user) { user.close(); }, "A3");
    EXPECT_EQ(host.modelCalls.back(), "fill/ABSCHLAG3");
}

TEST_F(EditingDeductions, ManagingModelsMayGiveTheLinesAnotherName) {
    host.onManage = [&](host::CalculationForm& form, ui::ComboBox& list) {
        EXPECT_EQ(form.lines()[1].designation, "Käferholzabschlag");
        EXPECT_EQ(form.lines()[1].value, "-25,75");
        list.clear();
        list.add("Sägewerk Neu", 7);
        list.select(0);
    };
    EXPECT_EQ(edit(1,
                   [](User& user) {
                       user.click("btnModels");
                       user.click("btnOk");
                   }),
              "Sägewerk Neu");
    EXPECT_EQ(host.modelCalls.back(), "manage/ABSCHLAG");
    host.onManage = [](host::CalculationForm&, ui::ComboBox& list) { list.clear(); };
    EXPECT_EQ(edit(1,
                   [](User& user) {
                       user.click("btnModels");
                       EXPECT_EQ(user.control<ui::ComboBox>("CmbModel").selectedText(), "Sägewerk Neu")
                           << "deleted as a model, not from the lines";
                       user.click("btnOk");
                   }),
              "Sägewerk Neu");
    EXPECT_EQ(edit(1,
                   [](User& user) {
                       for (const char* box : {"CmbStat(0)", "CmbStat(1)", "CmbStat(2)"})
                           user.select(box, 0);
                       for (const char* box : {"TextBez(0)", "TextBez(1)", "TextBez(2)"})
                           user.type(box, "");
                       for (const char* box : {"TextWert(0)", "TextWert(1)", "TextWert(2)"})
                           user.type(box, "0");
                       user.click("btnOk");
                   }),
              "")
        << "no line, no model";
}

} // namespace
} // namespace tellurix::tests
