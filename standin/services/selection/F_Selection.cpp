#include "standin/services/selection/F_Selection.h"

#include "module/base/Decimal.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "standin/services/texts/words.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr SelectionOperator allComparisons[] = {SelectionOperator::oneOf, SelectionOperator::notOneOf,
                                                SelectionOperator::between, SelectionOperator::atLeast,
                                                SelectionOperator::atMost};

bool hasFrom(SelectionOperator comparison) {
    return comparison == SelectionOperator::between || comparison == SelectionOperator::atLeast;
}

bool hasTo(SelectionOperator comparison) {
    return comparison == SelectionOperator::between || comparison == SelectionOperator::atMost;
}

/// The values of a condition that nothing has been chosen for yet.
std::vector<std::string> noValues(SelectionOperator comparison) {
    if (!isRange(comparison)) return {};
    return std::vector<std::string>(comparison == SelectionOperator::between ? 2 : 1);
}

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
    : Form("F_Selection", words.named("title")),
      display_(display),
      words_(words),
      choices_(std::move(choices)),
      expression_(std::move(expression)),
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
    showCondition();
}

void F_Selection::connect() {
    btnAdd.onClick = [this] { add(); };
    btnRemove.onClick = [this] { remove(); };
    grdConditions.onCurrentChange = [this] { showAnother(); };
    grdConditions.onDoubleClick = [this] { parts::SafeSetFocus(cboAttribute); };
    grdConditions.onKeyDown = [this](ui::KeyDown& key) {
        if (key.key != ui::Key::del) return;
        key.key = ui::Key::none;
        remove();
    };
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
    btnCancel.onClick = [this] { unload(); };
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
         ui::field(lblSentence, txtSentence), ui::row({btnOk, btnCancel})}));
}

SelectionTerm* F_Selection::current() {
    const int row = grdConditions.currentRow();
    return row == ui::Grid::none ? nullptr : &expression_.terms.at(static_cast<std::size_t>(row));
}

void F_Selection::add() {
    // The first attribute without a condition is most often the one that is wanted next.
    TimberAttribute attribute = TimberAttribute::species;
    for (const AttributeKind& kind : timberAttributes()) {
        attribute = kind.attribute;
        const auto isUsed = [&](const SelectionTerm& term) { return term.condition.attribute == attribute; };
        if (std::ranges::none_of(expression_.terms, isUsed)) break;
    }
    expression_.terms.push_back({.condition = {.attribute = attribute, .values = {}}});
    drawConditions();
    grdConditions.setCurrent(static_cast<int>(expression_.terms.size()) - 1);
    showAnother();
    parts::SafeSetFocus(cboAttribute);
}

void F_Selection::remove() {
    const int row = grdConditions.currentRow();
    if (row == ui::Grid::none) return;
    expression_.terms.erase(expression_.terms.begin() + row);
    if (!expression_.terms.empty()) expression_.terms.front().afterOr = false;
    grdConditions.removeRow(row);
    drawConditions();
    showAnother();
    if (expression_.terms.empty()) parts::SafeSetFocus(btnAdd);
}

void F_Selection::takeOver() {
    for (std::size_t i = 0; i < expression_.terms.size(); ++i) {
        const SelectionCondition& condition = expression_.terms[i].condition;
        const std::string problem = problemOf(condition);
        if (problem.empty()) continue;
        grdConditions.setCurrent(static_cast<int>(i));
        showAnother();
        const std::string name = words_.attribute(condition.attribute);
        parts::ShowMessage(display_, filled(words_.named("problem"), {std::to_string(i + 1), name, problem}),
                           ui::box::exclamation, title());
        for (ui::Control* control : std::initializer_list<ui::Control*>{&grdValues, &txtLengths, &txtFrom,
                                                                        &cboFrom, &txtTo, &cboTo}) {
            if (control->usable()) {
                setFocus(*control);
                break;
            }
        }
        return;
    }
    chosen_ = expression_;
    unload();
}

void F_Selection::showAnother() {
    drafts_.clear();
    showCondition();
}

void F_Selection::showCondition() {
    const SelectionTerm* term = current();
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
    showFieldsInUse();
    const SelectionTerm* term = current();
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
    if (hasFrom(comparison)) showLimit(txtFrom, cboFrom, values.front());
    if (hasTo(comparison)) showLimit(txtTo, cboTo, values.back());
}

void F_Selection::showFieldsInUse() {
    const SelectionTerm* term = current();
    const SelectionCondition condition = term == nullptr ? SelectionCondition{} : term->condition;
    const bool number = kindOf(condition.attribute).isNumber();
    const bool range = isRange(condition.comparison);
    const auto use = [](std::initializer_list<ui::Control*> controls, bool used) {
        for (ui::Control* control : controls)
            control->setVisible(used);
    };
    use({&lblValues, &grdValues}, !range && !number);
    use({&lblLengths, &txtLengths}, !range && number);
    use({&lblFrom}, hasFrom(condition.comparison));
    use({&txtFrom}, hasFrom(condition.comparison) && number);
    use({&cboFrom}, hasFrom(condition.comparison) && !number);
    use({&lblTo}, hasTo(condition.comparison));
    use({&txtTo}, hasTo(condition.comparison) && number);
    use({&cboTo}, hasTo(condition.comparison) && !number);
}

void F_Selection::changeJoiner() {
    SelectionTerm* term = current();
    if (term == nullptr) return;
    term->afterOr = cboJoiner.selected() == 1;
    drawConditions();
}

void F_Selection::changeAttribute() {
    SelectionTerm* term = current();
    if (term == nullptr || cboAttribute.selected() == ui::ItemList::none) return;
    SelectionCondition& condition = term->condition;
    keepValues(condition);
    condition.attribute = timberAttributes()[static_cast<std::size_t>(cboAttribute.selected())].attribute;
    const auto offered = comparisonsOf(condition.attribute);
    if (std::ranges::find(offered, condition.comparison) == offered.end())
        condition.comparison = SelectionOperator::oneOf;
    restoreValues(condition);
    drawConditions();
    showCondition();
}

void F_Selection::changeComparison() {
    SelectionTerm* term = current();
    if (term == nullptr || cboComparison.selected() == ui::ItemList::none) return;
    SelectionCondition& condition = term->condition;
    keepValues(condition);
    condition.comparison =
        comparisonsOf(condition.attribute)[static_cast<std::size_t>(cboComparison.selected())];
    restoreValues(condition);
    drawConditions();
    showValues();
}

void F_Selection::keepValues(const SelectionCondition& condition) {
    drafts_[{condition.attribute, noValues(condition.comparison).size()}] = condition.values;
}

void F_Selection::restoreValues(SelectionCondition& condition) const {
    condition.values = noValues(condition.comparison);
    const auto draft = drafts_.find({condition.attribute, condition.values.size()});
    if (draft != drafts_.end()) condition.values = draft->second;
}

void F_Selection::changeValues() {
    SelectionTerm* term = current();
    if (term == nullptr) return;
    auto& [attribute, comparison, values] = term->condition;
    const bool number = kindOf(attribute).isNumber();
    if (!isRange(comparison)) {
        values = number ? storedLengths(txtLengths.text()) : values_.chosen();
    } else {
        const auto limit = [&](const ui::TextBox& text, const ui::ComboBox& combo) {
            return number ? storedLength(text.text()) : combo.selectedText();
        };
        if (hasFrom(comparison)) values.front() = limit(txtFrom, cboFrom);
        if (hasTo(comparison)) values.back() = limit(txtTo, cboTo);
    }
    drawConditions();
}

void F_Selection::drawConditions() {
    std::vector<ui::Grid::Row> rows;
    for (const SelectionTerm& term : expression_.terms) {
        rows.push_back({rows.empty() ? "" : words_.joiner(term.afterOr),
                        words_.attribute(term.condition.attribute),
                        words_.comparison(term.condition.comparison), words_.values(term.condition)});
    }
    grdConditions.setRows(std::move(rows));
    txtSentence.setText(words_.sentence(expression_));
}

std::vector<SelectionOperator> F_Selection::comparisonsOf(TimberAttribute attribute) const {
    std::vector<SelectionOperator> comparisons;
    for (const SelectionOperator comparison : allComparisons) {
        if (kindOf(attribute).ordered || !isRange(comparison)) comparisons.push_back(comparison);
    }
    return comparisons;
}

std::string F_Selection::problemOf(const SelectionCondition& condition) const {
    const auto isMissing = [](const std::string& value) { return value.empty(); };
    const bool anyMissing = std::ranges::any_of(condition.values, isMissing);
    if (condition.values.empty() || (anyMissing && isRange(condition.comparison)))
        return words_.named("noValues");
    const bool number = kindOf(condition.attribute).isNumber();
    for (const std::string& value : condition.values) {
        if (number && !base::Decimal::parse(value)) return filled(words_.named("noLength"), {value});
    }
    if (condition.comparison != SelectionOperator::between) return {};
    const auto& [from, to] = std::pair{condition.values.front(), condition.values.back()};
    const bool descends = number ? *base::Decimal::parse(from) > *base::Decimal::parse(to)
                                 : base::toUpper(from) > base::toUpper(to);
    return descends ? words_.named("descends") : std::string{};
}

std::string F_Selection::storedLength(const std::string& typed) const {
    const std::string point = base::replaceAll(std::string{base::trim(typed)}, ",", ".");
    const auto number = base::Decimal::parse(point);
    return number ? number->toString() : std::string{base::trim(typed)};
}

std::vector<std::string> F_Selection::storedLengths(const std::string& typed) const {
    // "4,5" is one length where the comma is the decimal character, "4, 5" and "4;5" are always two.
    std::string text = base::replaceAll(typed, ";", " ") + " ";
    text = base::replaceAll(std::move(text), words_.locale().decimal == ',' ? ", " : ",", " ");
    std::vector<std::string> lengths;
    for (const std::string& word : wordsOf(text))
        lengths.push_back(storedLength(word));
    return lengths;
}

} // namespace tellurix::standin
