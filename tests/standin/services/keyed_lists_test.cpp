#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using Limits = host::KeyedLists::Limits;
using Keys = std::vector<std::string>;

class KeyedLists : public ServicesTest {
protected:
    Keys find(const std::string& list, const std::string& text, const Limits& limits) {
        return host.keyedLists.find(session, list, text, limits);
    }
};

TEST_F(KeyedLists, FindWithinTheirLimits) {
    session.connection->execute("UPDATE VERTRAEGE SET VERTRAG_NAME = 'O''Neill' WHERE ID_VERTRAG IN (1,2)");
    session.connection->execute("UPDATE VERTRAEGE SET VER_TYPE = 'A3' WHERE ID_VERTRAG = 2");
    const char* names = "VERTRAG_VALID";
    EXPECT_EQ(find(names, "O'Neill", {"", 5}), (Keys{"1", "2"})) << "all with that name";
    EXPECT_EQ(find(names, "o'neill", {"", 1}), Keys{"2"}) << "but for the contract itself";
    EXPECT_EQ(find(names, "O'Neill", {"A3", 5}), Keys{"2"}) << "of the type";
    EXPECT_EQ(find(names, "O'Neill", {"A4", 5}), Keys{});
    EXPECT_EQ(find("TYPEOFVERTRAG_VALID", "a3", {}), Keys{"A3"});
    EXPECT_EQ(find("TYPEOFVERTRAG_VALID", "Z9", {}), Keys{});
    EXPECT_EQ(host.keyedLists.typeOf(session, 2), "A3");
    EXPECT_EQ(host.keyedLists.typeOf(session, 4711), "");
    EXPECT_THROW(find("HOLZART_GRID", "", {}), std::invalid_argument);
}

TEST_F(KeyedLists, OfferWithinTheirLimits) {
    const auto all = [](User& user, const std::string& key) {
        for (const ui::Grid::Row& row : user.grid("grdList").rows())
            if (row.back() == key) return true;
        return false;
    };
    display.onWindow("F_ListPicker", [&](User& user) {
        EXPECT_EQ(user.window().title(), "Vertrag");
        EXPECT_FALSE(all(user, "1")) << "not the contract itself";
        EXPECT_TRUE(all(user, "3"));
        user.type("txtFilter", "R-2025-003");
        user.click("btnOk");
    });
    EXPECT_EQ(host.keyedLists.choose(session, "VERTRAG_GRID", "Vertrag", {"R", 1}, ""), "3");
    display.onWindow("F_ListPicker", [&](User& user) {
        EXPECT_FALSE(all(user, "3")) << "of the chosen type only";
        user.click("btnCancel");
    });
    EXPECT_EQ(host.keyedLists.choose(session, "VERTRAG_GRID", "Vertrag", {"A1", 1}, ""), "");
    display.onWindow("F_ListPicker", [](User& user) {
        EXPECT_EQ(user.grid("grdList").cell(0, 1), "Einkauf");
        user.click("btnOk");
    });
    EXPECT_EQ(host.keyedLists.choose(session, "TYPEOFVERTRAG_GRID", "Vertragsart", {"", 1}, ""), "A1");
    EXPECT_THROW(host.keyedLists.choose(session, "VERTRAG_VALID", "", {}, ""), std::invalid_argument);
}

} // namespace
} // namespace tellurix::tests
