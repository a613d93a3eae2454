#include "standin/services/selection/SelectionDraft.h"

#include "module/base/Decimal.h"
#include "module/base/text.h"
#include "standin/services/texts/words.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr SelectionOperator allComparisons[] = {SelectionOperator::oneOf, SelectionOperator::notOneOf,
                                                SelectionOperator::between, SelectionOperator::atLeast,
                                                SelectionOperator::atMost};

/// The values of a condition that nothing has been chosen for yet.
std::vector<std::string> noValues(SelectionOperator comparison) {
    if (!isRange(comparison)) return {};
    return std::vector<std::string>(comparison == SelectionOperator::between ? 2 : 1);
}

std::optional<SelectionDraft::Problem> problemOf(const SelectionCondition& condition) {
    const auto isMissing = [](const std::string& value) { return value.empty(); };
    const bool anyMissing = std::ranges::any_of(condition.values, isMissing);
    if (condition.values.empty() || (anyMissing && isRange(condition.comparison)))
        return SelectionDraft::Problem{.word = "noValues"};
    const bool number = kindOf(condition.attribute).isNumber();
    for (const std::string& value : condition.values) {
        if (number && !base::Decimal::parse(value))
            return SelectionDraft::Problem{.word = "noLength", .value = value};
    }
    if (condition.comparison != SelectionOperator::between) return std::nullopt;
    const auto& [from, to] = std::pair{condition.values.front(), condition.values.back()};
    const bool descends = number ? *base::Decimal::parse(from) > *base::Decimal::parse(to)
                                 : base::toUpper(from) > base::toUpper(to);
    if (!descends) return std::nullopt;
    return SelectionDraft::Problem{.word = "descends"};
}

} // namespace

void SelectionDraft::edit(int position) {
    held_.clear();
    position_ = position;
}

const SelectionTerm* SelectionDraft::current() const {
    return position_ == none ? nullptr : &expression_.terms.at(static_cast<std::size_t>(position_));
}

SelectionTerm* SelectionDraft::edited() {
    return position_ == none ? nullptr : &expression_.terms.at(static_cast<std::size_t>(position_));
}

void SelectionDraft::add() {
    // The first attribute without a condition is most often the one that is wanted next.
    TimberAttribute attribute = TimberAttribute::species;
    for (const AttributeKind& kind : timberAttributes()) {
        attribute = kind.attribute;
        const auto isUsed = [&](const SelectionTerm& term) { return term.condition.attribute == attribute; };
        if (std::ranges::none_of(expression_.terms, isUsed)) break;
    }
    expression_.terms.push_back({.condition = {.attribute = attribute, .values = {}}});
    edit(static_cast<int>(expression_.terms.size()) - 1);
}

void SelectionDraft::remove() {
    if (position_ == none) return;
    expression_.terms.erase(expression_.terms.begin() + position_);
    if (!expression_.terms.empty()) expression_.terms.front().afterOr = false;
    edit(std::min(position_, static_cast<int>(expression_.terms.size()) - 1));
}

void SelectionDraft::joinByOr(bool isOr) {
    if (SelectionTerm* term = edited()) term->afterOr = isOr;
}

void SelectionDraft::setAttribute(TimberAttribute attribute) {
    SelectionTerm* term = edited();
    if (term == nullptr) return;
    SelectionCondition& condition = term->condition;
    keepValues(condition);
    condition.attribute = attribute;
    const auto offered = comparisonsOf(attribute);
    if (std::ranges::find(offered, condition.comparison) == offered.end())
        condition.comparison = SelectionOperator::oneOf;
    restoreValues(condition);
}

void SelectionDraft::setComparison(SelectionOperator comparison) {
    SelectionTerm* term = edited();
    if (term == nullptr) return;
    keepValues(term->condition);
    term->condition.comparison = comparison;
    restoreValues(term->condition);
}

void SelectionDraft::setValues(std::vector<std::string> values) {
    if (SelectionTerm* term = edited()) term->condition.values = std::move(values);
}

std::optional<SelectionDraft::Problem> SelectionDraft::problem() const {
    for (std::size_t i = 0; i < expression_.terms.size(); ++i) {
        auto problem = problemOf(expression_.terms[i].condition);
        if (!problem) continue;
        problem->position = static_cast<int>(i);
        return problem;
    }
    return std::nullopt;
}

void SelectionDraft::keepValues(const SelectionCondition& condition) {
    held_[{condition.attribute, noValues(condition.comparison).size()}] = condition.values;
}

void SelectionDraft::restoreValues(SelectionCondition& condition) const {
    condition.values = noValues(condition.comparison);
    const auto held = held_.find({condition.attribute, condition.values.size()});
    if (held != held_.end()) condition.values = held->second;
}

bool hasLowerLimit(SelectionOperator comparison) {
    return comparison == SelectionOperator::between || comparison == SelectionOperator::atLeast;
}

bool hasUpperLimit(SelectionOperator comparison) {
    return comparison == SelectionOperator::between || comparison == SelectionOperator::atMost;
}

std::vector<SelectionOperator> comparisonsOf(TimberAttribute attribute) {
    std::vector<SelectionOperator> comparisons;
    for (const SelectionOperator comparison : allComparisons) {
        if (kindOf(attribute).ordered || !isRange(comparison)) comparisons.push_back(comparison);
    }
    return comparisons;
}

std::string storedLength(const std::string& typed) {
    const std::string point = base::replaceAll(std::string{base::trim(typed)}, ",", ".");
    const auto number = base::Decimal::parse(point);
    return number ? number->toString() : std::string{base::trim(typed)};
}

std::vector<std::string> storedLengths(const std::string& typed, char decimal) {
    std::string text = base::replaceAll(typed, ";", " ") + " ";
    text = base::replaceAll(std::move(text), decimal == ',' ? ", " : ",", " ");
    std::vector<std::string> lengths;
    for (const std::string& word : wordsOf(text))
        lengths.push_back(storedLength(word));
    return lengths;
}

} // namespace tellurix::standin
