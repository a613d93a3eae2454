#include "module/host/module_state.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Gauges.h"
#include "standin/home/F_Start.h"
#include "standin/home/ModuleOpener.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;
using namespace standin;

struct GlanceOver {};

/// The pane of the start page, on 9 March 2026.
class Glance : public ServicesTest {
protected:
    ~Glance() override { host::releaseModuleState(); }

    void work(const ScriptedDisplay::Script& script) {
        display.onWindow("F_Start", [&script](User& user) {
            script(user);
            throw GlanceOver{};
        });
        ModuleOpener module{services, session};
        F_Start start{services, session, module};
        EXPECT_THROW(start.Run(), GlanceOver);
    }

    static void find(User& user, const char* name) {
        user.type("txtSearch", name);
        user.pause();
    }

    /// Captions and values that are seen, one a line.
    static std::string pairs(User& user, const std::string& first, const std::string& second,
                             const std::string& third = {}) {
        std::string text;
        for (int i = 0;; ++i) {
            const std::string index = "(" + std::to_string(i) + ")";
            if (user.window().find(first + index) == nullptr) return text;
            const auto& label = user.control<ui::Label>(first + index);
            if (!label.showing()) continue;
            text += label.caption() + ": " + user.caption(second + index);
            if (!third.empty()) {
                const auto& due = user.control<ui::Label>(third + index);
                text += " " + due.caption() + (due.warning().empty() ? "" : "!");
            }
            text += "\n";
        }
    }
    static std::string head(User& user) { return pairs(user, "lblHead", "lblHeadValue"); }
    static std::string dates(User& user) { return pairs(user, "lblDate", "lblDay", "lblDue"); }
    static std::string lines(User& user) {
        std::string text;
        for (const auto& gauge : user.control<ui::Gauges>("gagLines").gauges()) {
            for (const std::string& cell : gauge.cells)
                text += (&cell == &gauge.cells.front() ? "" : "|") + cell;
            text += gauge.warns ? "!\n" : "\n";
        }
        return text;
    }
    static std::string title(User& user) { return user.control<ui::Frame>("frmGlance").caption(); }
    void db(const std::string& statement) { session.connection->execute(statement); }
};

TEST_F(Glance, ShowsWhatIsAskedOnThePhone) {
    work([&](User& user) {
        find(user, "faserholz judenburg");
        EXPECT_EQ(title(user), "R-2025-003 Faserholz Judenburg");
        EXPECT_EQ(user.caption("lblGlanceKind"), "R – Verkauf · offen");
        EXPECT_EQ(head(user), "Kunde: Zellstoff Möderbrugg\nLieferadresse: Holzplatz Judenburg\n"
                              "Lieferzeitraum: 05.05.2025 – 15.06.2025\n"
                              "Lieferbedingung: Lieferung frei Werk nach Wochenabruf\n"
                              "Zahlungsbedingung: Zahlung 21 Tage netto\n"
                              "Maßermittlung: Verrechnung nach atro-Gewicht\n");
        EXPECT_EQ(dates(user), "Lieferende: 15.06.2025 vorbei\n")
            << "dates of the head that are over are not next";
        EXPECT_NE(lines(user), "");

        find(user, "einkauf d'angelo");
        EXPECT_EQ(title(user), "A1-2025-003 Einkauf D'Angelo");
        EXPECT_EQ(lines(user), "");
        EXPECT_EQ(user.caption("lblTicks"), "Noch keine Mengen.");
        EXPECT_EQ(dates(user), "") << "its delivery has no end";

        find(user, "gibt es nicht");
        EXPECT_EQ(title(user), "");
        EXPECT_EQ(head(user) + lines(user) + dates(user), "") << "there is no current contract";
    });
}

TEST_F(Glance, SaysTheQuantitiesOfTheLinesAndWarnsPastThePermittedOne) {
    db("UPDATE WVO_VERTRAG SET UBERLIEFERUNG = 10 WHERE ID_VERTRAEGE = 1");
    std::vector<std::string> open;
    {
        // What the quantity screen says is what is to be seen here.
        display.onWindow("F_Vertrag", [&](User& editor) {
            display.onWindow("F_VertragMengen", [&](User& screen) {
                for (int i = 0; i < static_cast<int>(screen.grid("MSFlexGrid1").rows().size()); ++i) {
                    screen.select("MSFlexGrid1", i);
                    open.push_back(screen.text("txtOffen"));
                }
                screen.click("cmdOk");
            });
            editor.click("PosButton");
            editor.key(Key::escape);
        });
        ModuleOpener{services, session}.open({.id = 1,
                                              .name = "R-2025-001 Fichte Wolfsberg",
                                              .type = "R",
                                              .isNew = false,
                                              .caption = "Vertrag",
                                              .standardClient = 1});
    }
    work([&](User& user) {
        find(user, "einkauf breitenau");
        find(user, "fichte wolfsberg");
        const auto& gauges = user.control<ui::Gauges>("gagLines").gauges();
        ASSERT_EQ(gauges.size(), open.size());
        for (std::size_t i = 0; i < open.size(); ++i)
            EXPECT_EQ(gauges[i].cells.at(3), open[i]) << i;
        EXPECT_FALSE(gauges[0].warns);
        EXPECT_EQ(user.caption("lblTicks"), "Striche: 100 % und zulässig 110 %");
        EXPECT_FALSE(user.control<ui::Label>("lblTooMuch").visible());
        db("UPDATE WVO_VERTRAG SET UBERLIEFERUNG = 12.5 WHERE ID_VERTRAEGE = 1");
        find(user, "einkauf breitenau");
        find(user, "fichte wolfsberg");
        EXPECT_EQ(user.caption("lblTicks"), "Striche: 100 % und zulässig 112,50 %");
        db("UPDATE WVO_VERTRAG SET UBERLIEFERUNG = 10 WHERE ID_VERTRAEGE = 1");

        struct Case {
            const char* rule;
            const char* agreed;
            bool warns;
        };
        const Case cases[] = {{"all that is permitted", "34.0909090909", false},
                              {"more than is permitted", "34.09", true},
                              {"nothing is agreed", "0", true},
                              {"not even a 0", "NULL", true}};
        for (const Case& c : cases) {
            db("UPDATE VERTRAG_MENGEN SET MENGE = " + std::string{c.agreed} +
               " WHERE ID_VERTRAG = 1 AND ORDNUNG = 1");
            find(user, "einkauf breitenau");
            find(user, "fichte wolfsberg");
            EXPECT_EQ(gauges[0].warns, c.warns) << c.rule << "\n" << lines(user);
            EXPECT_EQ(user.control<ui::Label>("lblTooMuch").visible(), c.warns) << c.rule;
        }
        db("UPDATE VERTRAG_MENGEN SET SELEKTION_VALUE = '83 GLEICH 1 ;' WHERE ID_VERTRAG = 1 AND ORDNUNG = 3");
        find(user, "einkauf breitenau");
        find(user, "fichte wolfsberg");
        EXPECT_EQ(gauges[2].cells.at(2), "nicht lesbar");
        EXPECT_NE(gauges[1].cells.at(2), "nicht lesbar");
        EXPECT_EQ(display.errors(), std::vector<std::string>{}) << "it is told in the line's own screen";
    });
}

TEST_F(Glance, ComesWhenTheUserPausesAndIsGivenUpWhenTheRowChanges) {
    work([&](User& user) {
        user.select("cboType", 1);
        user.pause();
        const std::string first = title(user);
        EXPECT_EQ(first, "R-2025-001 Fichte Wolfsberg");
        user.focus("grdContracts");
        user.key(Key::down);
        EXPECT_EQ(title(user), first) << "the old one stays until the new one is there";
        EXPECT_TRUE(user.control<ui::Gauges>("gagLines").quiet());
        user.key(Key::down);
        user.pause();
        EXPECT_EQ(title(user), "R-2025-003 Faserholz Judenburg");
        EXPECT_FALSE(user.control<ui::Gauges>("gagLines").quiet());
        user.focus("txtSearch");
        user.key(Key::down);
        user.pause();
        EXPECT_EQ(title(user), "R-2025-004 Hackgut Wörgl")
            << "arrow keys in the search move in the list, too";

        user.key(Key::up);
        user.key(Key::down);
        EXPECT_FALSE(user.control<ui::Gauges>("gagLines").quiet()) << "it is the one that is shown";
        db("UPDATE VERTRAEGE SET KOPF1 = 'Abholung' WHERE ID_VERTRAG = 4");
        display.onWindow("F_Vertrag", [](User& editor) { editor.key(Key::escape); });
        user.key(Key::enter);
        user.pause();
        EXPECT_NE(head(user).find("Abholung"), std::string::npos) << "read anew on coming back";

        user.key(Key::up);
        db("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 3");
        user.pause();
        EXPECT_EQ(title(user), "");
        EXPECT_EQ(user.caption("lblGlanceKind"),
                  "Diesen Vertrag gibt es nicht mehr. Er wurde inzwischen gelöscht.");
    });
}

} // namespace
} // namespace tellurix::tests
