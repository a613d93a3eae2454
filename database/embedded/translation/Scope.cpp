#include "database/embedded/translation/Scope.h"

#include "database/embedded/values/Fault.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

std::string fullName(const Expression& column) {
    std::string name;
    if (!column.qualifier.empty()) name = std::string(column.qualifier.written) + ".";
    return name + std::string(column.name.written);
}

bool sameExpression(const Expression* left, const Expression* right);

/// The same without the first operands.
bool sameNode(const Expression& left, const Expression& right) {
    if (left.kind != right.kind || left.op != right.op || left.negated != right.negated ||
        left.distinct != right.distinct || left.hasElse != right.hasElse ||
        left.operands.size() != right.operands.size() || left.query != nullptr || right.query != nullptr)
        return false;
    switch (left.kind) {
    case ExpressionKind::column:
        return left.source == right.source && left.column == right.column;
    case ExpressionKind::integerLiteral:
    case ExpressionKind::decimalLiteral:
    case ExpressionKind::floatLiteral:
    case ExpressionKind::textLiteral:
        if (left.name.written != right.name.written) return false;
        break;
    case ExpressionKind::cast:
        if (left.type != right.type) return false;
        break;
    default:
        if (left.name.folded != right.name.folded || left.part.folded != right.part.folded) return false;
    }
    return left.operands.empty() || std::equal(left.operands.begin() + 1, left.operands.end(),
                                               right.operands.begin() + 1, sameExpression);
}

/// Whether two expressions mean the same; columns have to be translated already. A loop goes down the
/// first operands, because a long chain of signs is deep there.
bool sameExpression(const Expression* left, const Expression* right) {
    while (sameNode(*left, *right)) {
        if (left->operands.empty()) return true;
        left = left->operands.front();
        right = right->operands.front();
    }
    return false;
}

} // namespace

int Source::findColumn(std::string_view foldedColumn) const {
    if (table != nullptr) return table->findColumn(foldedColumn);
    const auto found = std::find_if(derived.begin(), derived.end(), [&](const OutputColumn& column) {
        return column.name.folded == foldedColumn;
    });
    return found == derived.end() ? Table::noColumn : static_cast<int>(found - derived.begin());
}

std::string_view Source::columnName(std::size_t index) const {
    return table != nullptr ? std::string_view(table->columns()[index].name) : derived[index].name.written;
}

Type Source::columnType(std::size_t index) const {
    return table != nullptr ? table->columns()[index].type : derived[index].type;
}

std::string Source::columnSql(std::size_t index) const {
    std::string sql;
    if (table == nullptr) {
        sql = sqlAlias + ".c" + std::to_string(index + 1);
        return sql;
    }
    const std::string& name = table->columns()[index].name;
    sql.reserve(sqlAlias.size() + name.size() + 3);
    sql += sqlAlias;
    sql += '.';
    sql += quoteName(name);
    return sql;
}

bool Source::isCollated(std::size_t index) const {
    return columnType(index).isText() && (table != nullptr || derived[index].collated);
}

const Source* Scope::findSource(std::string_view folded) const {
    const auto found = std::find_if(sources_.begin(), sources_.end(),
                                    [&](const Source& source) { return source.folded == folded; });
    return found == sources_.end() ? nullptr : &*found;
}

Scope::Place Scope::find(const Expression& column) {
    bool sourceKnown = false;
    for (Scope* scope = this; scope != nullptr; scope = scope->outer_) {
        Place place{scope, nullptr, Table::noColumn};
        for (const Source& source : scope->sources_) {
            if (!column.qualifier.empty() && source.folded != column.qualifier.folded) continue;
            sourceKnown = true;
            const int index = source.findColumn(column.name.folded);
            if (index == Table::noColumn) continue;
            if (place.source != nullptr)
                failUnknownName("The column " + fullName(column) + " is ambiguous: it is in " +
                                    std::string(place.source->written) + " and in " +
                                    std::string(source.written),
                                column.position);
            place.source = &source;
            place.column = index;
        }
        if (place.source != nullptr) return place;
    }
    if (!column.qualifier.empty() && !sourceKnown)
        failUnknownName("The table or alias " + std::string(column.qualifier.written) + " of the column " +
                            fullName(column) + " is not known here",
                        column.position);
    failUnknownName("There is no column " + fullName(column), column.position);
}

void Scope::startGrouping(const List<Expression*>& groupBy) {
    groupBy_ = &groupBy;
}

bool Scope::isGroup(const Expression& expression) const {
    return std::any_of(groupBy_->begin(), groupBy_->end(),
                       [&](const Expression* group) { return sameExpression(group, &expression); });
}

void Scope::use(const Expression& column) {
    if (groupBy_ != nullptr && aggregateDepth_ == 0 && !isGroup(column)) loose_.push_back(&column);
}

void Scope::finish(const Expression& expression, std::size_t before) {
    if (loose_.size() > before && isGroup(expression)) loose_.resize(before);
}

void Scope::requireGrouped() const {
    if (loose_.empty()) return;
    failSyntax("The column " + fullName(*loose_.front()) + " is neither in an aggregate nor in GROUP BY",
               loose_.front()->position);
}

} // namespace tellurix::embedded
