#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/TextBox.h"
#include "standin/services/AskingForm.h"
#include "standin/services/selection/SelectionDraft.h"
#include "standin/services/selection/codes/ChoiceList.h"
#include "standin/services/selection/selection_words.h"

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace tellurix::standin {

/// Lets the user put a selection together: a list of conditions joined by "and" and "or", below it
/// the condition that is current in the list, and the whole selection as a sentence. What is changed
/// below shows in the list and in the sentence at once; nothing is answered before "Übernehmen".
class F_Selection final : public AskingForm {
public:
    using Choices = std::map<TimberAttribute, std::vector<Choice>>;

    F_Selection(ui::Display& display, const SelectionWords& words, Choices choices,
                SelectionExpression expression);

    /// The answer, nothing when the user cancelled.
    const std::optional<SelectionExpression>& chosen() const { return chosen_; }

private:
    bool changed() const override { return draft_.expression() != before_; }
    void connect();
    void arrange();
    void add();
    void remove();
    void takeOver();
    /// Shows the current condition in the fields below the list.
    void showCondition();
    void showAnother();
    void showValues();
    void showFieldsInUse();
    /// Where the values of a condition are entered, by its attribute and comparison.
    std::array<ui::Control*, 6> valueFields();
    void forgetErrors();
    /// Takes what the user did in one of the fields into the draft.
    void changeJoiner();
    void changeAttribute();
    void changeComparison();
    void changeValues();
    void drawConditions();

    const SelectionWords& words_;
    Choices choices_;
    SelectionDraft draft_;
    SelectionExpression before_;
    std::optional<SelectionExpression> chosen_;

    ui::Button btnAdd{*this, "btnAdd", "&Neue Bedingung"};
    ui::Button btnRemove{*this, "btnRemove", "Bedingung &entfernen"};
    ui::Grid grdConditions{*this, "grdConditions", 6};
    ui::Frame frmCondition{*this, "frmCondition", "Bedingung"};
    ui::Label lblJoiner{*this, "lblJoiner", "&Verknüpfung"};
    ui::ComboBox cboJoiner{*this, "cboJoiner", 8};
    ui::Label lblAttribute{*this, "lblAttribute", "&Merkmal"};
    ui::ComboBox cboAttribute{*this, "cboAttribute", 16};
    ui::Label lblComparison{*this, "lblComparison", "Ver&gleich"};
    ui::ComboBox cboComparison{*this, "cboComparison", 16};
    ui::Label lblValues{*this, "lblValues", "&Werte"};
    ui::Grid grdValues{*this, "grdValues", 7};
    ui::Label lblLengths{*this, "lblLengths", "&Längen"};
    ui::TextBox txtLengths{*this, "txtLengths", 40};
    ui::Label lblFrom{*this, "lblFrom", "&Ab"};
    ui::TextBox txtFrom{*this, "txtFrom", 8};
    ui::ComboBox cboFrom{*this, "cboFrom", 10};
    ui::Label lblTo{*this, "lblTo", "Bi&s"};
    ui::TextBox txtTo{*this, "txtTo", 8};
    ui::ComboBox cboTo{*this, "cboTo", 10};
    ui::Label lblSentence{*this, "lblSentence", "Vo&rschau"};
    ui::TextBox txtSentence{*this, "txtSentence", 70};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
    ChoiceList values_;
};

} // namespace tellurix::standin
