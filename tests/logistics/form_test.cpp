#include "module/ui/controls/Tabs.h"
#include "tests/logistics/LogisticsTest.h"
#include "tests/support/EarlierVisit.h"

namespace tellurix::tests {
namespace {

class LogisticsForm : public LogisticsTest {
protected:
    enum Use { never, viewed, edited };
    struct Rule {
        const char* control;
        Use use; ///< when the user can use it
    };
    static void expectUses(User& user, const std::vector<Rule>& rules, Use now) {
        for (const Rule& rule : rules)
            EXPECT_EQ(user.usable(rule.control), rule.use == now) << rule.control;
    }
};

TEST_F(LogisticsForm, EachAreaIsViewedOrEditedForItself) {
    const std::vector<Rule> settings{
        {"btnBearbeiten", viewed}, {"btnSpeichern", edited},   {"btnAbbrechen", edited},
        {"chkGesperrt", edited},   {"txtAngemeldete", edited}, {"txtBemerkung", edited},
        {"txtOriginal", edited},   {"btnOriginal", edited},    {"chkFHPLogistikVerweden", edited}};
    const std::vector<Rule> calendar{{"btnNeu1", viewed},       {"btnBearbeiten1", viewed},
                                     {"btnSpeichern1", edited}, {"btnAbbrechen1", edited},
                                     {"btnLoschen1", viewed},   {"btnGenWeek", viewed},
                                     {"txtJahr", edited},       {"txtWoche", edited},
                                     {"txtPlanmenge", edited},  {"DataGridKalendar", viewed}};
    open(fibreWood, [&](User& user) {
        EXPECT_EQ(user.control<ui::Tabs>("SSTab1").selected(), 0);
        expectUses(user, settings, viewed);
        user.click("btnBearbeiten");
        expectUses(user, settings, edited);
        user.select("SSTab1", 1);
        expectUses(user, calendar, viewed);
        for (const char* begin : {"btnNeu1", "btnBearbeiten1"}) {
            user.click(begin);
            expectUses(user, calendar, edited);
            EXPECT_TRUE(user.usable("btnClose"));
            user.click("btnAbbrechen1");
            expectUses(user, calendar, viewed);
        }
        user.select("SSTab1", 0);
        expectUses(user, settings, edited);
        user.click("btnAbbrechen");
        expectUses(user, settings, viewed);
        user.close();
    });
}

TEST_F(LogisticsForm, EscEndsTheEditingThatIsSeenAndThenTheForm) {
    open(fibreWood, [&](User& user) {
        user.click("btnBearbeiten");
        user.key(ui::Key::escape);
        EXPECT_TRUE(user.usable("btnBearbeiten")) << "nothing was typed, so nothing is asked";
        user.click("btnBearbeiten");
        user.type("txtBemerkung", "vorher");
        host.display.onMessage("Verwerfen?", ui::Answer::no);
        user.key(ui::Key::escape);
        EXPECT_EQ(user.text("txtBemerkung"), "vorher");

        user.select("SSTab1", 1);
        user.click("btnNeu1");
        user.key(ui::Key::escape);
        EXPECT_TRUE(user.usable("btnNeu1")) << "the one that is seen";
        host.display.onMessage("Ohne Speichern schließen?", ui::Answer::no);
        user.key(ui::Key::escape);
        user.select("SSTab1", 0);
        host.display.onMessage("Verwerfen?", ui::Answer::yes);
        user.key(ui::Key::escape);
        EXPECT_NE(user.text("txtBemerkung"), "vorher");
        user.key(ui::Key::escape);
    });
}

TEST_F(LogisticsForm, NothingOfAnEarlierVisitStays) {
    std::string first;
    open(fibreWood, [&](User& user) {
        first = stateOf(user.window());
        user.select("SSTab1", 1);
        first += stateOf(user.window());
        user.close();
    });
    open(fullContract, [&](User& user) {
        user.click("btnBearbeiten");
        user.type("txtBemerkung", "vorher");
        user.type("txtBelieferung", "gibt es nicht");
        user.select("SSTab1", 1);
        user.clickHeading("DataGridKalendar", 2);
        user.click("btnNeu1");
        user.type("txtPlanmenge", "7777");
        host.display.onMessage("nicht gespeichert", ui::Answer::yes);
        user.close();
    });
    open(fibreWood, [&](User& user) {
        std::string again = stateOf(user.window());
        user.select("SSTab1", 1);
        again += stateOf(user.window());
        EXPECT_EQ(again, first);
        user.close();
    });
}

TEST_F(LogisticsForm, TheColumnsOfTheWeeksAreRestoredBeforeThoseOfTheHelpers) {
    open(fibreWood, [&](User& user) {
        ASSERT_GE(host.layouts.size(), 2u);
        // Before them come those of the editor.
        host.layouts.erase(host.layouts.begin(), host.layouts.end() - 2);
        EXPECT_EQ(host.layouts, (std::vector<std::string>{"restore/DataGridKalendar/F_VERTRAG_WVO_KAL",
                                                          "restore/MSFG/F_VERTRAG_WVO_WH"}));
        host.layouts.clear();
        user.close();
    });
    EXPECT_EQ(host.layouts, (std::vector<std::string>{"save/DataGridKalendar/F_VERTRAG_WVO_KAL",
                                                      "save/MSFG/F_VERTRAG_WVO_WH"}));
}

TEST_F(LogisticsForm, AServerThatIsGoneKeepsNobodyInside) {
    open(fibreWood, [&](User& user) {
        host.layoutFailure = "connection lost";
        user.close();
    });
    EXPECT_EQ(host.display.errors(), std::vector<std::string>{"connection lost"});
}

TEST_F(LogisticsForm, AContractThatAColleagueDeletedIsNotOpened) {
    host.display.onWindow("F_Vertrag", [&](User& user) {
        host.database.execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 2");
        user.click("btnLieferprofil_WVO");
        EXPECT_TRUE(host.display.errors().back().starts_with("Diesen Vertrag gibt es nicht mehr."));
        user.click("btnAbbrechen");
    });
    host.openContract(2, "R");
    EXPECT_EQ(row("SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 2"), "no row")
        << "no record without a contract";
}

} // namespace
} // namespace tellurix::tests
