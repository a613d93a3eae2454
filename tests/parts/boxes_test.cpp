#include "module/parts/Assignments.h"
#include "module/parts/fields/date_box.h"
#include "module/parts/questions.h"
#include "module/ui/input/RefusedInput.h"
#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

/// A box of each kind whose value an UPDATE writes.
struct Settings final : ui::Form {
    explicit Settings(TestHost& host) : Form("Settings"), percent(txtProzent, "##0.0", host.services.locale) {
        parts::makeDateBox(txtDatum, host.services, host.session, [this] { return lblDatum.caption(); });
        setLayout(ui::column({ui::field(lblDatum, txtDatum), txtProzent, txtText, chkJa}));
    }
    ui::Label lblDatum{*this, "lblDatum", "&Meldung bis"};
    ui::TextBox txtDatum{*this, "txtDatum"};
    ui::TextBox txtProzent{*this, "txtProzent"};
    ui::TextBox txtText{*this, "txtText"};
    ui::CheckBox chkJa{*this, "chkJa", "Ja"};
    parts::NumberField percent;
};

class Boxes : public ContractTest {
protected:
    std::string assignments() {
        base::StatementText statement{"SET "};
        parts::Assignments assign{statement, host.services, host.session};
        assign.date("D = ", settings.txtDatum);
        assign.number(",N  = ", settings.percent);
        assign.key(",K = ", settings.txtProzent.tag());
        assign.flagOrNull(",F = ", settings.chkJa);
        assign.text(",T = ", settings.txtText);
        return statement.text();
    }

    Settings settings{host};
};

TEST_F(Boxes, AreAssignedEachInItsOwnWay) {
    EXPECT_EQ(assignments(), "SET D = NULL,N  = NULL,K = NULL,F = NULL,T = NULL") << "what is empty is NULL";
    host.display.onWindow("Settings", [](User& user) {
        user.type("txtDatum", "5.6.25");
        user.type("txtProzent", "12,5");
        user.type("txtText", "Würth");
        user.click("chkJa");
        user.close();
    });
    host.display.showModal(settings);
    settings.txtProzent.setTag("17");
    EXPECT_EQ(assignments(), "SET D = '20250605',N  = 12.5,K = 17,F = 1,T = 'Würth'");
    settings.txtText.setText("d'Or");
    EXPECT_THROW(assignments(), ui::RefusedInput);
}

TEST_F(Boxes, AreNamedWhereAnEntryIsMissing) {
    host.display.onWindow("Settings", [&](User& user) {
        EXPECT_FALSE(parts::missing(host.services, host.session, settings.lblDatum, settings.txtDatum));
        EXPECT_EQ(user.focused(), "txtDatum");
        user.key(ui::Key::f4);
        EXPECT_EQ(host.picks.back(), "DATUM/&Meldung bis");
        user.close();
    });
    host.display.onMessage("Text 223 [Meldung bis]");
    host.display.showModal(settings);
    EXPECT_EQ(host.display.messages().back().flags, ui::box::exclamation);
}

TEST_F(Boxes, AQuestionThatLosesSomethingIsAnsweredWithNoByEnter) {
    for (const ui::Answer answer : {ui::Answer::yes, ui::Answer::no}) {
        host.display.onMessage("Verwerfen?", answer);
        EXPECT_EQ(parts::confirmed(host.display, "Verwerfen?"), answer == ui::Answer::yes);
        EXPECT_EQ(host.display.messages().back().flags,
                  ui::box::yesNo + ui::box::question + ui::box::defaultButton2);
    }
}

} // namespace
} // namespace tellurix::tests
