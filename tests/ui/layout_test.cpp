#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using namespace ui;

/// A list with its fields, as screens of lines are.
class LinesForm final : public Form {
public:
    LinesForm() : Form("F_Lines") {
        setLayout(column({
            sides(section(frmLines, {chkEdit}, {Layout{grdLines}.growing()}),
                  groups({frame(frmFields, {field(lblPrice, txtPrice)})}))
                .growing(),
            sums(grdSums, frame(frmSums, {row({under(0, lblSum)})})),
            bar({btnNew, Layout{btnSave}.primary()}, {btnChange}, {Layout{btnClose}.primary()}),
        }));
    }

    Frame frmLines{*this, "frmLines"};
    CheckBox chkEdit{*this, "chkEdit"};
    Grid grdLines{*this, "grdLines"};
    Frame frmFields{*this, "frmFields"};
    Label lblPrice{*this, "lblPrice"};
    TextBox txtPrice{*this, "txtPrice"};
    Grid grdSums{*this, "grdSums"};
    Frame frmSums{*this, "frmSums"};
    Label lblSum{*this, "lblSum"};
    Button btnNew{*this, "btnNew"};
    Button btnSave{*this, "btnSave"};
    Button btnChange{*this, "btnChange"};
    Button btnClose{*this, "btnClose"};
};

std::string tabOrder(const Form& form) {
    std::string names;
    for (const Control* control : form.tabOrder())
        names += control->name() + " ";
    return names;
}

TEST(Layout, TabFollowsWhatIsDrawn) {
    LinesForm form;
    EXPECT_EQ(tabOrder(form), "chkEdit grdLines txtPrice grdSums btnNew btnSave btnChange btnClose ");
    EXPECT_EQ(form.labelOf(form.txtPrice), &form.lblPrice);
}

TEST(Layout, SectionsAndFramesOfSumsContainWhatStandsInThem) {
    LinesForm form;
    form.frmLines.setEnabled(false);
    form.frmSums.setVisible(false);
    EXPECT_FALSE(form.chkEdit.usable());
    EXPECT_FALSE(form.grdLines.usable());
    EXPECT_FALSE(form.lblSum.showing());
    EXPECT_TRUE(form.grdSums.usable());
}

TEST(Layout, AVisitBeginsOnTheContentNotInAHeading) {
    LinesForm form;
    EXPECT_EQ(form.firstControl(), &form.grdLines);
    for (Control* control : form.tabOrder())
        control->setEnabled(control == &form.chkEdit);
    EXPECT_EQ(form.firstControl(), &form.chkEdit);
    form.chkEdit.setEnabled(false);
    EXPECT_EQ(form.firstControl(), nullptr);
}

TEST(Layout, ThePrimaryButtonIsTheFirstThatCanBePressed) {
    LinesForm form;
    EXPECT_EQ(form.primaryButton(), &form.btnSave);
    form.btnSave.setEnabled(false);
    EXPECT_EQ(form.primaryButton(), &form.btnClose);
    form.btnClose.setVisible(false);
    EXPECT_EQ(form.primaryButton(), nullptr);
}

} // namespace
} // namespace tellurix::tests
