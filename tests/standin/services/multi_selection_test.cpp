#include "tests/standin/services/ServicesTest.h"

#include <algorithm>

namespace tellurix::tests {
namespace {

using ui::Key;
using Keys = std::vector<std::int64_t>;

class MultiSelection : public ServicesTest {
protected:
    /// What the user marked, among the first forest helpers.
    std::optional<Keys> chosen(const Keys& marked, const ScriptedDisplay::Script& script) {
        display.onWindow("F_MultiSelection", script);
        return host.multiSelection.choose(session, "VERTRAG_KUNDE_WVO",
                                          "SELECT PERSONAL.ID_PERSONAL,PERSONAL.NUMMER AS [Nr.],"
                                          "PERSONAL.KURZBEZEICHNUNG AS [Kurz],PERSONAL.ORT AS [Ort]"
                                          " FROM PERSONAL WHERE PERSONAL.ABRECH2 = 1 AND "
                                          " PERSONAL.NUMMER < 3010 AND ISNULL(PERSONAL.DISABLE,0) = 0" +
                                              host.personQuery.restriction(session, "PERSONAL"),
                                          marked);
    }

    static std::int64_t keyOf(const std::string& number, MultiSelection& test) {
        return std::stoll(test.value("SELECT ID_PERSONAL FROM PERSONAL WHERE NUMMER = " + number));
    }

    std::int64_t first = keyOf("3001", *this);
    std::int64_t second = keyOf("3002", *this);
    std::int64_t fourth = keyOf("3004", *this);
};

std::string numbersIn(const ui::Grid& grid) {
    std::string text;
    for (const ui::Grid::Row& row : grid.rows())
        text += (row[0] == ui::Grid::unticked ? "" : row[0]) + row[1] + " ";
    return text;
}

TEST_F(MultiSelection, AnswersTheMarkedKeys) {
    struct Case {
        const char* rule;
        Keys marked;
        ScriptedDisplay::Script script;
        std::optional<Keys> answer;
    };
    constexpr std::int64_t disabled = 987654;
    const std::string town = value("SELECT ORT FROM PERSONAL WHERE NUMMER = 3002");
    const Case cases[] = {
        {"the columns of the query without the key, those that are marked first",
         {fourth},
         [](User& user) {
             const ui::Grid& grid = user.grid("grdList");
             EXPECT_EQ(user.window().title(), "Waldhelfer auswählen");
             EXPECT_EQ(grid.columns().at(1).caption + grid.columns().at(3).caption, "Nr.Ort");
             EXPECT_TRUE(grid.columns().at(1).rightAligned && !grid.columns().at(2).rightAligned);
             EXPECT_EQ(numbersIn(grid), "☑3004 3001 3002 3003 3006 3007 ");
             EXPECT_EQ(user.caption("lblCount"), "1 gewählt, Treffer: 6 von 6");
             user.click("btnOk");
         },
         Keys{fourth}},
        {"ordered by a heading, a mark belongs to its row",
         {},
         [](User& user) {
             user.clickHeading("grdList", 1);
             user.clickHeading("grdList", 1);
             EXPECT_EQ(numbersIn(user.grid("grdList")), "3007 3006 3004 3003 3002 3001 ");
             user.select("grdList", 5, 1);
             user.key(Key::space);
             EXPECT_TRUE(numbersIn(user.grid("grdList")).ends_with(" 3002 ☑3001 "));
             user.key(Key::enter);
         },
         Keys{first}},
        {"typing searches, Enter goes to the list, Space marks, Enter takes over",
         {},
         [](User& user) {
             user.type("3001");
             user.key(Key::enter);
             EXPECT_EQ(user.focused(), "grdList");
             user.key(Key::space);
             EXPECT_EQ(user.caption("lblCount"), "1 gewählt, Treffer: 1 von 6");
             user.type("3002");
             EXPECT_EQ(user.text("txtSearch"), "3002") << "typing in the list searches again";
             user.key(Key::enter);
             user.key(Key::space);
             user.key(Key::enter);
         },
         Keys{first, second}},
        {"Space takes the mark of the current row away, too",
         {second, fourth},
         [](User& user) {
             user.focus("grdList");
             user.key(Key::space);
             user.key(Key::enter);
         },
         Keys{fourth}},
        {"any column is searched, by words, in any case of the letters",
         {},
         [&](User& user) {
             user.type("txtSearch", "300 " + town);
             EXPECT_NE(numbersIn(user.grid("grdList")).find("3002"), std::string::npos);
             user.replaceText("txtSearch", "3002 3003");
             EXPECT_EQ(numbersIn(user.grid("grdList")), "") << "all words in one row";
             EXPECT_EQ(user.caption("lblCount"), "0 gewählt, keine Treffer");
             user.key(Key::enter);
             user.key(Key::space);
             user.key(Key::enter);
         },
         Keys{}},
        {"all that were found are marked at once, what a search hides stays as it is",
         {fourth},
         [](User& user) {
             user.type("txtSearch", "3001");
             user.click("btnMarkFound");
             user.replaceText("txtSearch", "");
             EXPECT_EQ(numbersIn(user.grid("grdList")), "☑3004 ☑3001 3002 3003 3006 3007 ");
             user.click("chkMarked");
             EXPECT_EQ(numbersIn(user.grid("grdList")), "☑3004 ☑3001 ");
             user.type("txtSearch", "3004");
             user.click("btnUnmarkFound");
             user.click("btnOk");
         },
         Keys{first}},
        {"a mark on somebody who is not offered stays",
         {disabled, first},
         [](User& user) {
             EXPECT_EQ(user.caption("lblCount"), "2 gewählt, Treffer: 6 von 6 (1 davon stehen nicht in der "
                                                 "Liste und bleiben gewählt)");
             user.doubleClick("grdList");
             user.click("btnOk");
         },
         Keys{disabled}},
        {"a search cannot break out of anything",
         {},
         [](User& user) {
             user.type("txtSearch", "%' OR 1=1 --");
             EXPECT_EQ(numbersIn(user.grid("grdList")), "");
             user.click("btnOk");
         },
         Keys{}},
        {"Esc cancels",
         {first},
         [](User& user) {
             user.click("btnUnmarkFound");
             user.key(Key::escape);
         },
         std::nullopt},
    };
    display.onMessage("Verwerfen?", ui::Answer::yes);
    for (const Case& c : cases) {
        EXPECT_EQ(chosen(c.marked, c.script), c.answer) << c.rule;
        session.connection->execute("DELETE FROM WORKBENCH_GRID_LAYOUT");
    }
}

TEST_F(MultiSelection, OffersWhomTheUserMaySee) {
    session.connection->execute("UPDATE PERSONAL SET ID_ACCESS_LEVELS = 4 WHERE NUMMER IN (3001)");
    for (const auto& [level, seen] : {std::pair{4, true}, {5, false}}) {
        session.accessLevel = level;
        chosen({}, [&, seen = seen](User& user) {
            EXPECT_EQ(numbersIn(user.grid("grdList")).starts_with("3001"), seen);
            user.key(Key::escape);
        });
    }
}

} // namespace
} // namespace tellurix::tests
