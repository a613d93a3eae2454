#include "module/parts/M_Common.h"
#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

class CommonRoutines : public ContractTest {};

TEST_F(CommonRoutines, AMessageWithoutATitleIsTheApplications) {
    host.display.onMessage("Frage", ui::Answer::no);
    host.display.onMessage("Hinweis", ui::Answer::ok, "Vertrag Preise");
    EXPECT_EQ(parts::ShowMessage(host.display, "Frage", ui::box::yesNo), ui::Answer::no);
    parts::ShowMessage(host.display, "Hinweis", ui::box::ok, "Vertrag Preise");
}

TEST_F(CommonRoutines, TypeColumnsFollowKindAndExactTypeCode) {
    struct Case {
        const char* kind;
        const char* type;
        bool articles;
        const char* column;
    };
    const Case cases[] = {
        {"ABSCHLAG", "R", false, "ABSCHLAG"},
        {"abschlag", "A3", false, "ABSCHLAG3"},
        {"ABSCHLAG", "A8", true, "ABSCHLAG8_A"},
        {"ABSCHLAG", "a3", false, ""},
        {"RECHZUSATZ", "R", true, "KONF_RECHZUSATZ"},
        {"Rechzusatz", "A1", false, "KONF_RECHZUSATZ1"},
        {"RECHZUSATZ", "A9", false, ""},
        {"ETWAS", "R", true, ""},
    };
    for (const Case& c : cases) {
        host.articles = c.articles;
        EXPECT_EQ(parts::GetTypeColumn(c.kind, c.type, &host.mainWindow()), c.column)
            << c.kind << " " << c.type;
    }
    EXPECT_EQ(parts::GetTypeColumn("ABSCHLAG", "R", nullptr), "ABSCHLAG");
}

/// One box that edits a column, and a list of units.
struct Entry final : ui::Form {
    Entry() : Form("Entry") {
        for (const char* unit : {"Fm", "Stück", "Rm"})
            cboUnit.add(unit);
        setLayout(ui::column({txtWert, cboUnit}));
    }
    ui::TextBox txtWert{*this, "txtWert"};
    ui::ComboBox cboUnit{*this, "cboUnit"};
    ui::ComboBox cboLeer{*this, "cboLeer"};
};

TEST_F(CommonRoutines, ComboEntriesAreFoundInAnyCaseOrTheFirstIsTaken) {
    Entry entry;
    parts::SelectComboItem(entry.cboUnit, "STÜCK");
    EXPECT_EQ(entry.cboUnit.selectedText(), "Stück");
    parts::SelectComboItem(entry.cboUnit, "Srm");
    EXPECT_EQ(entry.cboUnit.selectedText(), "Fm");
    parts::SelectComboItem(entry.cboLeer, "Fm");
    EXPECT_EQ(entry.cboLeer.selected(), ui::ItemList::none);
}

TEST_F(CommonRoutines, KeysAreCheckedAgainstTheColumnTheyGoInto) {
    host.database.execute(
        "CREATE TABLE T (KLEIN smallint NULL, GANZ int NULL, BYTE_ tinyint NULL, ZAHL float NULL, "
        "DEZ decimal(9,2) NULL, JA bit NULL, TEXT_ nvarchar(10) NULL)");
    struct Case {
        const char* rule;
        const char* column;
        const char* text;
        char key;
        bool taken;
        bool asks = true; ///< the database, for the column's type
    };
    const Case cases[] = {
        {"a digit", "GANZ", "12", '3', true},
        {"a letter in an integer", "GANZ", "12", 'x', false},
        {"beyond 32 bits", "GANZ", "214748364", '8', false},
        {"the last of 16 bits", "KLEIN", "3276", '7', true},
        {"beyond 16 bits", "KLEIN", "3276", '8', false},
        {"beyond a byte", "BYTE_", "25", '6', false},
        {"a lone minus", "GANZ", "", '-', true, false},
        {"Backspace on anything", "GANZ", "abc", 8, true, false},
        {"decimals in a floating column", "ZAHL", "1,", '5', true},
        {"a second comma", "DEZ", "1,5", ',', false},
        {"a Boolean by number", "JA", "", '1', true},
        {"a Boolean by letter", "JA", "", 'q', false},
        {"a text takes everything", "TEXT_", "1", 'x', true},
    };
    host.display.onWindow("Entry", [&](User& user) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.rule);
            user.replaceText("txtWert", c.text);
            host.statements.clear();
            const auto key = parts::CheckKeyForColumn(host.session, user.window(), c.key, "T", c.column,
                                                      base::Locale::german());
            EXPECT_EQ(key, c.taken ? c.key : 0);
            const std::vector<std::string> query{std::string{"SELECT "} + c.column + " FROM T"};
            EXPECT_EQ(host.statements, c.asks ? query : std::vector<std::string>{});
        }
        auto& box = user.control<ui::TextBox>("txtWert");
        box.setText("12,5");
        box.select(4, 0);
        parts::SelectActiveText(user.window());
        EXPECT_EQ(box.selectionLength(), 4);
        parts::SafeSetFocus(*user.window().find("cboUnit"));
        EXPECT_EQ(user.focused(), "cboUnit");
        box.select(4, 0);
        parts::SelectActiveText(user.window());
        EXPECT_EQ(box.selectionLength(), 0) << "it is not the active one";
        user.window().find("txtWert")->setEnabled(false);
        parts::SafeSetFocus(*user.window().find("txtWert"));
        EXPECT_EQ(user.focused(), "cboUnit") << "what cannot take it is left alone";
        user.close();
    });
    Entry entry;
    host.display.showModal(entry);
}

} // namespace
} // namespace tellurix::tests
