#include "standin/services/selection/F_Selection.h"

#include "module/parts/M_Common.h"
#include "standin/services/texts/words.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

void showChoice(ui::ComboBox& box, const std::vector<Choice>& choices, const std::string& chosen) {
    box.clear();
    for (const Choice& choice : choices)
        box.add(choice.code);
    if (chosen.empty()) return;
    const auto at = std::ranges::find(choices, chosen, &Choice::code);
    if (at == choices.end()) box.add(chosen);
    box.select(static_cast<int>(at - choices.begin()));
}

} // namespace

F_Selection::F_Selection(ui::Display& display, const SelectionWords& words, Choices choices,
                         SelectionExpression expression)
    : AskingForm(display, "F_Selection", words.named("title")),
      words_(words),
      choices_(std::move(choices)),
      draft_(expression),
      before_(std::move(expression)),
      values_(grdValues, words.choiceCaptions()) {
    grdConditions.setColumns({{.caption = "", .width = 6},
                              {.caption = "Merkmal", .width = 16},
                              {.caption = "Vergleich", .width = 16},
                              {.caption = "Werte", .width = 36}});
    for (const bool isOr : {false, true})
        cboJoiner.add(words_.joiner(isOr), isOr ? 1 : 0);
    for (const AttributeKind& kind : timberAttributes())
        cboAttribute.add(words_.attribute(kind.attribute), static_cast<int>(kind.attribute));
    txtSentence.setLocked(true);
    txtSentence.setLines(3);
    connect();
    arrange();
    drawConditions();
    grdConditions.setCurrent(0);
    showAnother();
}

void F_Selection::connect() {
    btnAdd.onClick = [this] { add(); };
    btnRemove.onClick = [this] { remove(); };
    grdConditions.onCurrentChange = [this] { showAnother(); };
    grdConditions.onDoubleClick = [this] { parts::SafeSetFocus(cboAttribute); };
    grdConditions.pressOn(ui::Key::insert, btnAdd);
    grdConditions.pressOn(ui::Key::del, btnRemove);
    cboJoiner.onChange = [this] { changeJoiner(); };
    cboAttribute.onChange = [this] { changeAttribute(); };
    cboComparison.onChange = [this] { changeComparison(); };
    values_.onChange = [this] { changeValues(); };
    values_.onEnter = [this] { parts::SafeSetFocus(btnOk); };
    for (ui::TextBox* box : {&txtLengths, &txtFrom, &txtTo})
        box->onChange = [this] { changeValues(); };
    for (ui::ComboBox* box : {&cboFrom, &cboTo})
        box->onChange = [this] { changeValues(); };
    btnOk.onClick = [this] { takeOver(); };
    btnCancel.onClick = [this] { leave(); };
    setCancelButton(btnCancel);
}

void F_Selection::arrange() {
    setLayout(ui::column(
        {ui::row({btnAdd, btnRemove}), ui::Layout{grdConditions}.growing(),
         ui::frame(frmCondition,
                   {ui::fields(3, {ui::field(lblJoiner, cboJoiner), ui::field(lblAttribute, cboAttribute),
                                   ui::field(lblComparison, cboComparison)}),
                    ui::field(lblValues, grdValues), ui::field(lblLengths, txtLengths),
                    ui::row({ui::field(lblFrom, txtFrom, cboFrom), ui::field(lblTo, txtTo, cboTo)})}),
         ui::field(lblSentence, txtSentence), ui::bar({ui::Layout{btnOk}.primary(), btnCancel})}));
}

void F_Selection::add() {
    draft_.add();
    drawConditions();
    grdConditions.setCurrent(draft_.position());
    showCondition();
    parts::SafeSetFocus(cboAttribute);
}

void F_Selection::remove() {
    if (draft_.current() == nullptr) return;
    grdConditions.removeRow(draft_.position());
    draft_.remove();
    drawConditions();
    showAnother();
    if (draft_.current() == nullptr) parts::SafeSetFocus(btnAdd);
    status().say(words_.named("removed"));
}

void F_Selection::takeOver() {
    const auto problem = draft_.problem();
    if (!problem) {
        chosen_ = draft_.expression();
        leave();
        return;
    }
    grdConditions.setCurrent(problem->position);
    showAnother();
    const std::string why = filled(words_.named(problem->word), {problem->value});
    for (ui::Control* control : valueFields()) {
        if (!control->usable()) continue;
        control->setError(why);
        setFocus(*control);
        break;
    }
    parts::ShowMessage(
        display(),
        filled(words_.named("problem"), {std::to_string(problem->position + 1),
                                         words_.attribute(draft_.current()->condition.attribute), why}),
        ui::box::exclamation, title());
}

std::array<ui::Control*, 6> F_Selection::valueFields() {
    return {&grdValues, &txtLengths, &txtFrom, &cboFrom, &txtTo, &cboTo};
}

void F_Selection::showAnother() {
    draft_.edit(grdConditions.currentRow());
    showCondition();
}

void F_Selection::showCondition() {
    const SelectionTerm* term = draft_.current();
    btnRemove.setEnabled(term != nullptr);
    frmCondition.setEnabled(term != nullptr);
    cboJoiner.setEnabled(grdConditions.currentRow() > 0);
    cboJoiner.select(grdConditions.currentRow() > 0 ? (term->afterOr ? 1 : 0) : ui::ItemList::none);
    cboComparison.clear();
    if (term == nullptr) {
        cboAttribute.select(ui::ItemList::none);
    } else {
        cboAttribute.selectItemData(static_cast<int>(term->condition.attribute));
        for (const SelectionOperator comparison : comparisonsOf(term->condition.attribute))
            cboComparison.add(words_.comparison(comparison), static_cast<int>(comparison));
        cboComparison.selectItemData(static_cast<int>(term->condition.comparison));
    }
    showValues();
}

void F_Selection::showValues() {
    forgetErrors();
    showFieldsInUse();
    const SelectionTerm* term = draft_.current();
    if (term == nullptr) {
        values_.show({}, {});
        return;
    }
    const auto& [attribute, comparison, values] = term->condition;
    const bool number = kindOf(attribute).isNumber();
    if (!isRange(comparison)) {
        if (number) {
            txtLengths.setText(values.empty() ? std::string{} : words_.values(term->condition));
        } else {
            values_.show(choices_[attribute], values);
        }
        return;
    }
    const auto showLimit = [&](ui::TextBox& text, ui::ComboBox& combo, const std::string& limit) {
        if (number) {
            text.setText(words_.value(attribute, limit));
        } else {
            showChoice(combo, choices_[attribute], limit);
        }
    };
    if (hasLowerLimit(comparison)) showLimit(txtFrom, cboFrom, values.front());
    if (hasUpperLimit(comparison)) showLimit(txtTo, cboTo, values.back());
}

void F_Selection::showFieldsInUse() {
    const SelectionTerm* term = draft_.current();
    const SelectionCondition condition = term == nullptr ? SelectionCondition{} : term->condition;
    const bool number = kindOf(condition.attribute).isNumber();
    const bool range = isRange(condition.comparison);
    const auto use = [](std::initializer_list<ui::Control*> controls, bool used) {
        for (ui::Control* control : controls)
            control->setVisible(used);
    };
    use({&lblValues, &grdValues}, !range && !number);
    use({&lblLengths, &txtLengths}, !range && number);
    use({&lblFrom}, hasLowerLimit(condition.comparison));
    use({&txtFrom}, hasLowerLimit(condition.comparison) && number);
    use({&cboFrom}, hasLowerLimit(condition.comparison) && !number);
    use({&lblTo}, hasUpperLimit(condition.comparison));
    use({&txtTo}, hasUpperLimit(condition.comparison) && number);
    use({&cboTo}, hasUpperLimit(condition.comparison) && !number);
}

void F_Selection::changeJoiner() {
    draft_.joinByOr(cboJoiner.selected() == 1);
    drawConditions();
}

void F_Selection::changeAttribute() {
    if (draft_.current() == nullptr || cboAttribute.selected() == ui::ItemList::none) return;
    draft_.setAttribute(timberAttributes()[static_cast<std::size_t>(cboAttribute.selected())].attribute);
    drawConditions();
    showCondition();
}

void F_Selection::changeComparison() {
    const SelectionTerm* term = draft_.current();
    if (term == nullptr || cboComparison.selected() == ui::ItemList::none) return;
    const auto offered = comparisonsOf(term->condition.attribute);
    draft_.setComparison(offered[static_cast<std::size_t>(cboComparison.selected())]);
    drawConditions();
    showValues();
}

void F_Selection::forgetErrors() {
    for (ui::Control* control : valueFields())
        control->setError({});
}

void F_Selection::changeValues() {
    forgetErrors();
    const SelectionTerm* term = draft_.current();
    if (term == nullptr) return;
    const auto& [attribute, comparison, held] = term->condition;
    const bool number = kindOf(attribute).isNumber();
    std::vector<std::string> values = held;
    if (!isRange(comparison)) {
        values = number ? storedLengths(txtLengths.text(), words_.locale().decimal) : values_.chosen();
    } else {
        const auto limit = [&](const ui::TextBox& text, const ui::ComboBox& combo) {
            return number ? storedLength(text.text()) : combo.selectedText();
        };
        if (hasLowerLimit(comparison)) values.front() = limit(txtFrom, cboFrom);
        if (hasUpperLimit(comparison)) values.back() = limit(txtTo, cboTo);
    }
    draft_.setValues(std::move(values));
    drawConditions();
}

void F_Selection::drawConditions() {
    std::vector<ui::Grid::Row> rows;
    for (const SelectionTerm& term : draft_.expression().terms) {
        rows.push_back({rows.empty() ? "" : words_.joiner(term.afterOr),
                        words_.attribute(term.condition.attribute),
                        words_.comparison(term.condition.comparison), words_.values(term.condition)});
    }
    grdConditions.setRows(std::move(rows));
    txtSentence.setText(words_.sentence(draft_.expression()));
}

} // namespace tellurix::standin
