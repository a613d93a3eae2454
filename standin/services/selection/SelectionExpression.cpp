#include "standin/services/selection/SelectionExpression.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

std::string literal(const AttributeKind& kind, const std::string& value) {
    return kind.isNumber() ? value : "'" + base::replaceAll(value, "'", "''") + "'";
}

std::string literals(const AttributeKind& kind, const std::vector<std::string>& values) {
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + literal(kind, value);
    return list;
}

/// The condition behind its attribute, the same in the stored form and in SQL.
std::string comparisonText(const SelectionCondition& condition) {
    const AttributeKind& kind = kindOf(condition.attribute);
    const std::vector<std::string>& values = condition.values;
    switch (condition.comparison) {
    case SelectionOperator::oneOf:
        return "IN (" + literals(kind, values) + ")";
    case SelectionOperator::notOneOf:
        return "NOT IN (" + literals(kind, values) + ")";
    case SelectionOperator::between:
        return "BETWEEN " + literal(kind, values.at(0)) + " AND " + literal(kind, values.at(1));
    case SelectionOperator::atLeast:
        return ">= " + literal(kind, values.at(0));
    case SelectionOperator::atMost:
        return "<= " + literal(kind, values.at(0));
    }
    return {};
}

std::string stored(const SelectionCondition& condition) {
    return std::to_string(static_cast<int>(condition.attribute)) + " " + comparisonText(condition) + " ;";
}

/// Every condition begins as the quick selection's own do, which it recognises by just that.
bool looksQuick(const std::vector<SelectionTerm>& terms) {
    return std::ranges::all_of(terms, [](const SelectionTerm& term) {
        return !term.afterOr && term.condition.comparison == SelectionOperator::oneOf;
    });
}

/// Shown in a box of the quick selection, the codes can be told apart and nothing of them is lost.
bool fitsBox(const SelectionCondition& condition) {
    return std::ranges::all_of(condition.values, [](const std::string& value) {
        return !value.empty() && value.find_first_of(" ',;()") == std::string::npos;
    });
}

std::string sqlCondition(const SelectionCondition& condition) {
    const std::string column = "LOGS." + std::string{kindOf(condition.attribute).column};
    std::string comparison = column + " " + comparisonText(condition);
    if (condition.comparison != SelectionOperator::notOneOf) return comparison;
    return "(" + column + " IS NULL OR " + comparison + ")";
}

} // namespace

bool isRange(SelectionOperator comparison) {
    return comparison != SelectionOperator::oneOf && comparison != SelectionOperator::notOneOf;
}

std::string SelectionExpression::print() const {
    const bool quickLooking = looksQuick(terms);
    std::string text;
    if (quickLooking) {
        std::vector<SelectionCondition> conditions;
        for (const SelectionTerm& term : terms)
            conditions.push_back(term.condition);
        std::ranges::stable_sort(conditions, {}, &SelectionCondition::attribute);
        const bool twice =
            std::ranges::adjacent_find(conditions, {}, &SelectionCondition::attribute) != conditions.end();
        if (!twice && std::ranges::all_of(conditions, fitsBox)) {
            for (const SelectionCondition& condition : conditions)
                text += stored(condition);
            return text;
        }
    }
    for (const SelectionTerm& term : terms)
        text += (term.afterOr ? "OR " : quickLooking ? "AND " : "") + stored(term.condition);
    return text;
}

std::string SelectionExpression::toSql() const {
    if (terms.empty()) return " FROM LOGS";
    std::string alternatives;
    std::string conditions;
    bool several = false;
    const auto finishAlternative = [&] {
        alternatives += (alternatives.empty() ? "" : " OR ") + conditions;
        conditions.clear();
    };
    for (const SelectionTerm& term : terms) {
        if (term.afterOr) {
            finishAlternative();
            several = true;
        }
        conditions += (conditions.empty() ? "" : " AND ") + sqlCondition(term.condition);
    }
    finishAlternative();
    // In brackets, so that a caller can add a condition of its own.
    return " FROM LOGS WHERE " + (several ? "(" + alternatives + ")" : alternatives);
}

} // namespace tellurix::standin
