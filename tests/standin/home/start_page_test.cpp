#include "standin/home/F_Start.h"
#include "standin/home/ModuleOpener.h"

#include "module/host/module_state.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;
using namespace standin;

/// Ends the start page as the end of a session does; nothing else can.
struct SessionOver {};

/// The start page with the real module behind it.
class StartPage : public ServicesTest {
protected:
    ~StartPage() override { host::releaseModuleState(); }

    void work(const ScriptedDisplay::Script& script) {
        display.onWindow("F_Start", [&script](User& user) {
            script(user);
            throw SessionOver{};
        });
        ModuleOpener module{services, session};
        F_Start start{services, session, module,
                      [this](const std::string& language) { toldLanguage = language; }};
        EXPECT_THROW(start.Run(), SessionOver);
        EXPECT_EQ(display.errors(), std::vector<std::string>{});
    }

    std::int64_t number(const std::string& query) { return session.connection->open(query)->integer("N"); }

    /// The first letters of the listed contracts' names, which tell them apart.
    static std::string listed(User& user) {
        std::string names;
        for (const ui::Grid::Row& row : user.grid("grdContracts").rows())
            names += row.front().substr(0, row.front().find(' ')) + " ";
        return names;
    }
    static std::string current(User& user) {
        const ui::Grid& grid = user.grid("grdContracts");
        return grid.currentRow() == ui::Grid::none ? "" : grid.cell(grid.currentRow(), 0);
    }

    std::string toldLanguage;
};

constexpr int all = 0;
constexpr int open = 1;
constexpr int closed = 2;

TEST_F(StartPage, NarrowsTheContracts) {
    struct Case {
        const char* rule;
        const char* search;
        int type; ///< in the list of types, 0 for all
        int status;
        const char* from;
        const char* to;
        const char* expected;
    };
    const Case cases[] = {
        {"closed ones", "", 0, closed, "", "", "A3-2024-002 A3-2024-004 A6-2024-001 A7-2024-002 R-2024-017 "},
        {"a word of the name, umlauts in any case", "WÖRGL", 0, all, "", "", "R-2025-004 "},
        {"the customer's short name, with its apostrophe", "d'ang legn", 0, all, "", "", "R-2025-002 "},
        {"each word counts, wherever it stands", "kärnt wolfsb", 0, all, "", "", "R-2024-017 R-2025-001 "},
        {"a wildcard is a plain character", "%", 0, all, "", "", ""},
        {"so are the others", "2025_001", 0, all, "", "", ""},
        {"nothing in a search breaks out of it", "x' OR 1=1 --", 0, all, "", "", ""},
        {"one type", "", 2, open, "", "", "A1-2025-001 A1-2025-002 A1-2025-003 A1-2026-001 "},
        {"a period inside theirs; none is no period, an open one lasts", "", 0, open, "01.01.2026",
         "31.01.2026", "A1-2025-003 A6-2025-001 A8-2025-001 R-2025-005 "},
        {"the last day counts", "", 1, open, "30.04.2026", "", "R-2025-005 R-2026-001 R-2026-003 "},
        {"the day after does not", "", 1, open, "1.5.2026", "", "R-2025-005 R-2026-003 "},
        {"the first day counts", "", 2, open, "", "15.1.25", "A1-2025-001 "},
        {"the day before does not", "", 2, open, "", "14.1.25", ""},
    };
    work([&](User& user) {
        EXPECT_EQ(user.focused(), "txtSearch");
        EXPECT_EQ(user.caption("lblCount"),
                  "18 Verträge, 1 endet in den nächsten 30 Tagen, 11 sind vorbei und noch offen");
        ui::Grid& contracts = user.grid("grdContracts");
        for (const ui::Grid::Cell cell : contracts.warnings())
            EXPECT_EQ(contracts.cell(cell.row, 0) + ": " + contracts.cell(cell.row, cell.column),
                      "A8-2025-001 Provision Gmunden: in 22 T.");
        EXPECT_EQ(contracts.warnings().size(), 1U) << "who is over needs no warning";
        for (const Case& row : cases) {
            user.type("txtSearch", row.search);
            user.select("cboType", row.type);
            user.select("cboClosed", row.status);
            user.type("txtFrom", row.from);
            user.type("txtTo", row.to);
            user.key(Key::tab);
            EXPECT_EQ(listed(user), row.expected) << row.rule;
            EXPECT_EQ(user.usable("btnOpen"), row.expected[0] != 0) << row.rule;
        }
    });
}

TEST_F(StartPage, ShowsWhatAContractIs) {
    work([&](User& user) {
        user.type("txtSearch", "villach");
        ASSERT_EQ(listed(user), "R-2025-002 ");
        EXPECT_EQ(
            user.grid("grdContracts").rows().front(),
            (ui::Grid::Row{
                "R-2025-002 Lärche Villach", "R – Verkauf", "D'Angelo Legnami", "01.03.2025", "30.09.2025",
                "vorbei", "offen",
                std::to_string(number("SELECT COUNT(*) AS N FROM VERTRAG_PREISE WHERE ID_VERTRAG = 2")),
                std::to_string(number("SELECT COUNT(*) AS N FROM VERTRAG_MENGEN WHERE ID_VERTRAG = 2"))}));
        // Customer 0 is none.
        user.type("txtSearch", "vorvertrag");
        EXPECT_EQ(user.grid("grdContracts").cell(0, 2), "");
    });
}

TEST_F(StartPage, OpensTheReportsForAContractKind) {
    struct Case {
        const char* rule;
        const char* settings; ///< of the kinds
        const char* kinds;    ///< offered, one a line
        int chosen;
        const char* contract; ///< the first that the provision reports offer; empty for none
    };
    const Case cases[] = {
        {"the kinds that are named", "('FAKTART7','Tausch'),('FAKTART1','Verkauf')", "Verkauf\nTausch\n", 0,
         "R-2025-003"},
        {"another kind", "('FAKTART7','Tausch'),('FAKTART1','Verkauf')", "Verkauf\nTausch\n", 1, ""},
        {"none is named", "('FAKTART0','Nichts')", "1\n", 0, "R-2025-003"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        session.connection->execute("DELETE FROM WORKBENCH_SETTING WHERE NAME LIKE 'FAKTART%'");
        session.connection->execute("INSERT INTO WORKBENCH_SETTING (NAME,VALUE) VALUES " +
                                    std::string{c.settings});
        std::string first;
        work([&](User& user) {
            EXPECT_EQ(user.items("cboKind"), c.kinds);
            user.select("cboKind", c.chosen);
            display.onWindow("F_Bereitstellung_WVO", [&](User& reports) {
                display.onWindow("F_ListPicker", [&](User& list) {
                    const auto& rows = list.grid("grdList").rows();
                    first = rows.empty() ? "" : rows.front().front();
                    list.close();
                });
                reports.focus("txtVertrag");
                reports.ctrl();
                reports.close();
            });
            user.click("btnProvisionReports");
            display.onWindow("F_VertragMengenmeldung_WVO", [](User& reports) { reports.close(); });
            user.click("btnQuantityReports");
        });
        EXPECT_EQ(first.substr(0, first.find(' ')), c.contract);
    }
}

TEST_F(StartPage, ABadDateKeepsTheFocusAndTheText) {
    display.onMessage("Ungültige");
    work([&](User& user) {
        user.type("txtFrom", "31.02.2026");
        user.key(Key::tab);
        EXPECT_EQ(user.focused(), "txtFrom");
        EXPECT_EQ(user.text("txtFrom"), "31.02.2026");
    });
}

TEST_F(StartPage, OpensAContractAsTheHostDoes) {
    work([&](User& user) {
        user.type("txtSearch", "fichte wolfsberg");
        display.onWindow("F_Vertrag", [](User& editor) {
            EXPECT_EQ(editor.window().title(), "Vertrag (R-2025-001 Fichte Wolfsberg)");
            const host::HostContext& context = host::moduleState().context;
            EXPECT_EQ(context.StrVer_Type, "R");
            EXPECT_EQ(context.strDecimalSep, ",");
            EXPECT_EQ(context.strThousantSep, ".");
            EXPECT_EQ(context.g_intStandardMandanten, 1);
            EXPECT_NE(context.F_Main, nullptr);
            editor.click("chkAbgeschlossen");
            editor.click("btnSpeichern");
        });
        user.key(Key::enter);
        // Closed now, so it is no longer among the open ones; the module has told the host.
        EXPECT_EQ(listed(user), "");
        display.onWindow("F_Notifications", [](User& told) {
            ASSERT_EQ(told.grid("grdNotifications").rows().size(), 1u);
            EXPECT_EQ(told.grid("grdNotifications").cell(0, 1), "1VVM");
            EXPECT_EQ(told.grid("grdNotifications").cell(0, 2), "R – Verkauf");
            told.key(Key::escape);
        });
        user.alt(U'h');

        user.type("txtSearch", "");
        user.select("cboClosed", all);
        user.select("grdContracts", 7);
        const std::string chosen = current(user);
        display.onWindow("F_Vertrag", [](User& editor) {
            EXPECT_EQ(host::moduleState().context.StrVer_Type, "A4");
            editor.key(Key::escape);
        });
        user.doubleClick("grdContracts");
        EXPECT_EQ(current(user), chosen) << "the current row is kept";
        display.onWindow("F_Notifications", [](User& told) {
            EXPECT_EQ(told.grid("grdNotifications").cell(0, 1), "2VABR4") << "the newest on top";
            told.click("btnClose");
        });
        user.click("btnNotifications");
    });
}

TEST_F(StartPage, AContractThatIsGoneIsToldAndLeavesTheList) {
    display.onMessage("gibt es nicht mehr");
    work([&](User& user) {
        user.type("txtSearch", "mariahof");
        session.connection->execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 17");
        user.key(Key::enter);
        EXPECT_EQ(listed(user), "");
    });
}

TEST_F(StartPage, RefusesANameThatIsNoneAndCreatesNothing) {
    struct Case {
        const char* rule;
        const char* name;
        const char* message;
    };
    const Case cases[] = {
        {"an empty name", "", "einen Namen"},
        {"blanks are no name", "   ", "einen Namen"},
        {"a name that exists, in other letters", " r-2025-002 LÄRCHE villach", "schon einen Vertrag"},
        {"a name that no contract screen could use", "D'Angelo", "Apostroph"},
    };
    const std::int64_t before = number("SELECT COUNT(*) AS N FROM VERTRAEGE");
    for (const Case& row : cases)
        display.onMessage(row.message);
    work([&](User& user) {
        display.onWindow("F_NewContract", [&](User& form) {
            for (const Case& row : cases) {
                form.type("txtName", row.name);
                form.click("btnOk");
                EXPECT_EQ(form.text("txtName"), row.name) << row.rule;
                EXPECT_EQ(form.focused(), "txtName") << row.rule;
                EXPECT_NE(form.error("txtName").find(row.message), std::string::npos) << row.rule;
            }
            display.onMessage("Verwerfen?", ui::Answer::no);
            form.key(Key::escape);
            form.click("btnCancel");
        });
        user.click("btnNew");
    });
    EXPECT_EQ(number("SELECT COUNT(*) AS N FROM VERTRAEGE"), before);
}

TEST_F(StartPage, ANewContractStaysWhenSavedAndGoesWhenDiscarded) {
    work([&](User& user) {
        user.select("cboType", 4);
        const auto create = [&](const std::string& name, const ScriptedDisplay::Script& inEditor) {
            display.onWindow("F_NewContract", [&name](User& form) {
                form.type("txtName", name);
                form.click("btnOk");
            });
            display.onWindow("F_Vertrag", [&](User& editor) {
                EXPECT_EQ(editor.window().title(), "Vertrag (" + name + ")");
                EXPECT_EQ(host::moduleState().context.StrVer_Type, "A3") << "the type of the filter";
                inEditor(editor);
            });
            user.click("btnNew");
        };
        create("Fracht \"Ö\" 1", [](User& editor) { editor.click("btnSpeichern"); });
        EXPECT_EQ(current(user), "Fracht \"Ö\" 1");
        EXPECT_EQ(number("SELECT COUNT(*) AS N FROM VERTRAEGE WHERE VERTRAG_NAME = 'Fracht \"Ö\" 1' AND "
                         "VER_TYPE = 'A3' AND ID_FAKTART = 4 AND INVDATE IS NOT NULL"),
                  1);

        display.onMessage("noch nicht gespeichert", Answer::yes);
        create("Verworfen", [](User& editor) { editor.close(); });
        EXPECT_EQ(number("SELECT COUNT(*) AS N FROM VERTRAEGE WHERE VERTRAG_NAME = 'Verworfen'"), 0);
        EXPECT_EQ(listed(user).find("Verworfen"), std::string::npos);
    });
}

TEST_F(StartPage, SwitchesTheLanguageAtOnceAndBack) {
    work([&](User& user) {
        user.type("txtSearch", "villach");
        user.select("cboLanguage", 1);
        EXPECT_EQ(session.language, "en");
        EXPECT_EQ(toldLanguage, "en");
        EXPECT_EQ(user.window().title(), "Contracts");
        EXPECT_EQ(user.control<ui::Button>("btnOpen").caption(), "&Open");
        EXPECT_EQ(user.grid("grdContracts").columns().front().caption, "Contract");
        EXPECT_EQ(user.grid("grdContracts").cell(0, 1), "R – Sale");
        EXPECT_EQ(user.caption("lblCount"), "1 contract, 1 is over and still open");
        EXPECT_EQ(user.items("cboClosed"), "All\nOpen\nClosed\n");
        EXPECT_EQ(user.control<ui::ComboBox>("cboClosed").selected(), open);
        display.onWindow("F_Vertrag", [](User& editor) {
            EXPECT_EQ(editor.window().title(), "Contract (R-2025-002 Lärche Villach)");
            editor.close();
        });
        user.click("btnOpen");

        user.select("cboLanguage", 0);
        EXPECT_EQ(user.window().title(), "Verträge");
        EXPECT_EQ(user.grid("grdContracts").columns().front().caption, "Vertrag");
        EXPECT_EQ(user.caption("lblCount"), "1 Vertrag, 1 ist vorbei und noch offen");

        user.type("txtSearch", "gibt es nicht");
        EXPECT_EQ(user.grid("grdContracts").emptyText(),
                  "Keine Treffer für „gibt es nicht“ – bitte anders suchen");
        user.select("cboLanguage", 1);
        EXPECT_EQ(user.grid("grdContracts").emptyText(),
                  "Nothing found for \"gibt es nicht\" – try another search");
    });
}

TEST_F(StartPage, StaysOpenAndListsNoMoreThanCanBeSurveyed) {
    session.connection->execute(
        "Declare @n int\r\nSET @n = 0\r\nWHILE @n < 600\r\nbegin\r\n"
        "INSERT INTO VERTRAEGE (VERTRAG_NAME) VALUES ('Z' + CAST(@n AS nvarchar(5)))\r\n"
        "SET @n = @n + 1\r\nend");
    work([&](User& user) {
        EXPECT_EQ(user.grid("grdContracts").rows().size(), F_Start::listedAtMost);
        EXPECT_EQ(user.caption("lblCount"), "500 von mehr als 500 – bitte einschränken");
        user.key(Key::escape);
        user.close();
        EXPECT_TRUE(user.window().loaded());
    });
}

} // namespace
} // namespace tellurix::tests
