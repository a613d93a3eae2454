#include "database/embedded/translation/carried_keys.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

bool isQualifiedColumn(const Expression& side) {
    return side.kind == ExpressionKind::column && !side.qualifier.empty();
}

bool isFixedValue(const Expression& side) {
    return side.kind == ExpressionKind::integerLiteral || side.kind == ExpressionKind::variable;
}

bool sameName(const Expression& left, const Expression& right) {
    return left.qualifier.folded == right.qualifier.folded && left.name.folded == right.name.folded;
}

/// `visit(left, right)` for each equation, both ways round, that has to hold where the condition holds.
template <typename Visit>
void eachEquation(const Expression* condition, const Visit& visit) {
    if (condition == nullptr) return;
    // The links of a chain of ANDs are one node's operands; what stands in parentheses is looked at once
    // more.
    std::vector<const Expression*> links{condition};
    while (!links.empty()) {
        const Expression& link = *links.back();
        links.pop_back();
        if (link.kind == ExpressionKind::logical && link.op == Operator::logicalAnd) {
            links.insert(links.end(), link.operands.begin(), link.operands.end());
        } else if (link.kind == ExpressionKind::comparison && link.op == Operator::equal) {
            visit(*link.operands[0], *link.operands[1]);
            visit(*link.operands[1], *link.operands[0]);
        }
    }
}

struct Fixed {
    const Expression* column;
    Expression* value;
};

/// The columns that have one value in all rows of the answer.
std::vector<Fixed> fixedColumns(const List<FromItem>& from, const Expression* where) {
    std::vector<Fixed> fixed;
    const auto collect = [&](const Expression& column, Expression& value) {
        if (isQualifiedColumn(column) && isFixedValue(value)) fixed.push_back({&column, &value});
    };
    eachEquation(where, collect);
    for (const FromItem& item : from)
        if (item.join == JoinKind::inner) eachEquation(item.on, collect);
    return fixed;
}

/// The column that the derived table is grouped by and answers with under this name.
Expression* groupOf(const SelectBranch& branch, std::string_view folded) {
    Expression* group = nullptr;
    for (const SelectItem& item : branch.items) {
        if (item.expression == nullptr) return nullptr; // * may have the name, too
        const bool column = item.expression->kind == ExpressionKind::column;
        const std::string_view name = !item.alias.empty() ? item.alias.folded
                                      : column            ? item.expression->name.folded
                                                          : std::string_view{};
        if (name != folded) continue;
        if (group != nullptr || !column) return nullptr;
        group = item.expression;
    }
    if (group == nullptr) return nullptr;
    const auto isGroup = [&](const Expression* each) {
        return each->kind == ExpressionKind::column && sameName(*each, *group);
    };
    return std::ranges::any_of(branch.groupBy, isGroup) ? group : nullptr;
}

} // namespace

std::vector<CarriedKey> carriedKeys(const List<FromItem>& from, const Expression* where,
                                    const FromItem& derived) {
    std::vector<CarriedKey> keys;
    if (derived.derived == nullptr || derived.derived->branches.size() != 1) return keys;
    const SelectBranch& branch = *derived.derived->branches.front();
    if (branch.groupBy.empty() || branch.top != nullptr) return keys;
    const std::vector<Fixed> fixed = fixedColumns(from, where);
    eachEquation(derived.on, [&](const Expression& own, Expression& other) {
        if (!isQualifiedColumn(own) || own.qualifier.folded != derived.alias.folded) return;
        Expression* const group = groupOf(branch, own.name.folded);
        if (group == nullptr) return;
        if (isFixedValue(other)) keys.push_back({nullptr, &other, group});
        if (!isQualifiedColumn(other)) return;
        for (const Fixed& each : fixed)
            if (sameName(*each.column, other)) keys.push_back({each.column, each.value, group});
    });
    return keys;
}

} // namespace tellurix::embedded
