#include "module/base/StatementText.h"
#include "module/parts/fields/LookupBox.h"
#include "module/ui/Form.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

/// A lookup box with its label, as the head data has them.
class LookupForm final : public ui::Form {
public:
    LookupForm(host::HostServices& services, const host::TlxVar& session)
        : Form("LookupForm"),
          lookup_(
              txtRechn, services, session, [] { return std::string{"Rechnungsart"}; },
              parts::queried("SELECT RECHNUNGSART AS SHORT FROM RECHNUNGSART",
                             "SELECT RART_ID,RECHNUNGSART  FROM RECHNUNGSART WHERE RECHNUNGSART = '")) {
        setLayout(ui::column({ui::field(lblRechn, txtRechn), ui::Layout{btnOk}}));
        lookup_.show("Gutschrift", "2");
    }

private:
    ui::Label lblRechn{*this, "lblRechn", "&Rechnungsart"};
    ui::TextBox txtRechn{*this, "txtRechn"};
    ui::Button btnOk{*this, "btnOk"};
    parts::LookupBox lookup_;
};

class Lookup : public ServicesTest {};

TEST_F(Lookup, ResolvesWhatIsTyped) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* key;
        const char* message; ///< null for none
        const char* focus;   ///< after Tab
    };
    const Case cases[] = {
        {"a text of the list", "Sammelrechnung", "3", nullptr, "btnOk"},
        {"in any case of its letters", "stornorechnung für KÄUFER", "5", nullptr, "btnOk"},
        {"an empty box has no key", "", "", nullptr, "btnOk"},
        {"blanks are an empty box", "  ", "", nullptr, "btnOk"},
        {"an unknown text is told by the name of its box and stays", "Quittung", "",
         "Ungültige oder fehlende Eingabe! [Rechnungsart]", "txtRechn"},
        {"a doubled apostrophe is sent and not found", "a''b", "",
         "Ungültige oder fehlende Eingabe! [Rechnungsart]", "txtRechn"},
        {"a hostile text is never sent", "x' OR '1'='1", "", nullptr, "txtRechn"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        const std::size_t errors = display.errors().size();
        LookupForm form{host, session};
        display.onWindow("LookupForm", [&](User& user) {
            if (c.message != nullptr) display.onMessage(c.message);
            user.type("txtRechn", c.typed);
            user.key(Key::tab);
            EXPECT_EQ(user.text("txtRechn"), c.typed);
            EXPECT_EQ(user.tag("txtRechn"), c.key);
            EXPECT_EQ(user.focused(), c.focus);
            user.close();
        });
        display.showModal(form);
        const bool hostile = c.message == nullptr && c.focus == std::string{"txtRechn"};
        EXPECT_EQ(display.errors().size() - errors, hostile ? 1U : 0U);
    }
}

TEST_F(Lookup, ThePickerOffersTheList) {
    LookupForm form{host, session};
    display.onWindow("LookupForm", [&](User& user) {
        display.onWindow("F_ListPicker", [](User& picker) {
            EXPECT_EQ(picker.window().title(), "Rechnungsart");
            const ui::Grid& list = picker.grid("grdList");
            EXPECT_EQ(list.columns().front().caption, "Auswahl");
            EXPECT_EQ(list.cell(list.currentRow(), 0), "Gutschrift") << "starts on the text in the box";
            picker.type("txtFilter", "bar");
            picker.key(Key::enter);
        });
        user.ctrl();
        EXPECT_EQ(user.text("txtRechn"), "Barverkauf");
        user.key(Key::tab);
        EXPECT_EQ(user.tag("txtRechn"), "4");
        user.close();
    });
    display.showModal(form);
}

TEST_F(Lookup, TheListsOfTheLogisticsSettingsAreKnownByTheirKeys) {
    struct Case {
        const char* rule;
        const char* list;
        const char* typed;
        const char* key;
        const char* shown;
        const char* message; ///< null for none
    };
    const Case cases[] = {
        {"a kind of delivery", "WVO_T_BELIEFERUNG_VALID", "freie anlieferung", "3", "Freie Anlieferung",
         nullptr},
        {"by its short name", "WVO_T_BELIEFERUNG_VALID", " kw ", "2", "Gleichmäßig nach Kalenderwochen",
         nullptr},
        {"a parity", "WVO_T_LIEFERPARITAT_VALID", "Frei Werk", "2", "Frei Werk", nullptr},
        {"the week begins on Sunday", "WVO_T_BEREITSELLUNGS_VALID", "Sonntag", "1", "Sonntag", nullptr},
        {"and ends on Saturday", "WVO_T_BEREITSELLUNGS_VALID", "sa", "7", "Samstag", nullptr},
        {"an unknown text stays, without a key", "WVO_T_BEREITSELLUNGS_VALID", "Feier'tag", "", "Feier'tag",
         "Ungültige oder fehlende Eingabe! [Text]"},
        {"an empty box has no key", "WVO_T_BEREITSELLUNGS_VALID", "", "", "", nullptr},
    };
    struct Typed final : ui::Form {
        Typed() : Form("Typed") { setLayout(ui::field(lblText, txtText)); }
        ui::Label lblText{*this, "lblText", "Text"};
        ui::TextBox txtText{*this, "txtText"};
    };
    for (const Case& c : cases) {
        Typed form;
        form.txtText.setText(c.typed);
        if (c.message != nullptr) display.onMessage(c.message);
        EXPECT_EQ(host.lookupValidation.resolve(session, c.list, form.txtText, &form.txtText, "LONG"),
                  c.message == nullptr)
            << c.rule;
        EXPECT_EQ(form.txtText.tag(), c.key) << c.rule;
        EXPECT_EQ(form.txtText.text(), c.shown) << c.rule;
    }
    display.onWindow("F_ListPicker", [](User& picker) {
        const ui::Grid& list = picker.grid("grdList");
        EXPECT_EQ(list.columns().front().caption, "Bezeichnung");
        ASSERT_EQ(list.rows().size(), 7U);
        EXPECT_EQ(list.cell(0, 0), "Sonntag") << "in the order of the days";
        EXPECT_EQ(list.cell(list.currentRow(), 0), "Mittwoch") << "starts on the text in the box";
        picker.key(Key::down);
        picker.key(Key::enter);
    });
    EXPECT_EQ(host.listPicker.choose(session, "WVO_T_BEREITSELLUNGS_GRID", "Tag", "Mittwoch"), "Donnerstag");
}

TEST_F(Lookup, TheCalendarStartsOnTheBoxOrToday) {
    struct Case {
        const char* rule;
        const char* current;
        Key key;
        const char* answer;
    };
    const Case cases[] = {
        {"the date in the box", "5.6.2025", Key::right, "06.06.2025"},
        {"today for an empty box", "", Key::right, "10.03.2026"},
        {"today for a text that is no date", "bald", Key::left, "08.03.2026"},
    };
    for (const Case& c : cases) {
        display.onWindow("F_Calendar", [&](User& user) {
            EXPECT_EQ(user.window().title(), "Lieferzeitraum von");
            user.key(c.key);
            user.key(Key::enter);
        });
        EXPECT_EQ(host.listPicker.choose(session, "DATUM", "Lieferzeitraum von", c.current), c.answer)
            << c.rule;
    }
    display.onWindow("F_Calendar", [](User& user) { user.key(Key::escape); });
    EXPECT_EQ(host.listPicker.choose(session, "DATUM", "", "bald"), "bald") << "cancelled: the text stays";
    display.onWindow("F_ListPicker", [](User& user) { user.key(Key::escape); });
    EXPECT_EQ(host.listPicker.choose(session, "SELECT BUCHUNGSTEXT AS SHORT FROM BUCHNR", "", "bald"), "bald")
        << "nor does a list empty the box";
}

TEST_F(Lookup, PersonsAreFoundByNumberWithinWhatMayBeSeen) {
    struct Case {
        const char* rule;
        const char* number;
        int accessLevel;
        const char* filter;
        const char* person;
    };
    const Case cases[] = {
        {"a customer", "2010", 0, "PERSONAL_VALID", "10"},
        {"with its thousands apart", "2.010", 0, "PERSONAL_VALID", "10"},
        {"a disabled person is not valid", "2016", 0, "PERSONAL_VALID", "no row"},
        {"nor one of another access level", "2015", 0, "PERSONAL_VALID", "no row"},
        {"one of the contract's level is", "2015", 5, "PERSONAL_VALID", "15"},
        {"a client", "101", 0, "PERSONAL_VALID_MANDANTEN", "2"},
        {"a customer is no client", "2010", 0, "PERSONAL_VALID_MANDANTEN", "no row"},
        {"a disabled client", "102", 0, "PERSONAL_VALID_MANDANTEN", "no row"},
        {"an unknown number", "99999999999", 0, "PERSONAL_VALID", "no row"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(value(host.personQuery.build(session, "PERSONAL", c.number, c.accessLevel, c.filter)),
                  c.person)
            << c.rule;
    }
    EXPECT_THROW(host.personQuery.build(session, "PERSONAL", "1 OR 1=1", 0, "PERSONAL_VALID"),
                 base::StatementError);
    EXPECT_THROW(host.personQuery.build(session, "PERSONAL", "1", 0, "ALL"), std::invalid_argument);
}

} // namespace
} // namespace tellurix::tests
