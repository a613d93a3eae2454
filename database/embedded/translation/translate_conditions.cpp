#include "database/embedded/syntax/chained.h"
#include "database/embedded/translation/Translator.h"
#include "database/embedded/values/Fault.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <vector>

namespace tellurix::embedded {

namespace {

const char* signOf(Operator op) {
    switch (op) {
    case Operator::equal:
        return "=";
    case Operator::notEqual:
        return "<>";
    case Operator::less:
        return "<";
    case Operator::lessOrEqual:
        return "<=";
    case Operator::greater:
        return ">";
    default:
        return ">=";
    }
}

Fragment conditionOf(std::string sql, std::size_t position) {
    return {.sql = std::move(sql), .type = Type::condition(), .position = position};
}

std::string compared(const Fragment& left, const char* sign, const Fragment& right) {
    std::string sql;
    sql.reserve(left.sql.size() + right.sql.size() + 4);
    sql += '(';
    sql += left.sql;
    sql += sign;
    sql += right.sql;
    sql += ')';
    return sql;
}

} // namespace

Fragment Translator::comparison(const Expression& expression) {
    Fragment left = value(*expression.operands[0]);
    Fragment right = value(*expression.operands[1]);
    makeComparable(left, right);
    return conditionOf(compared(left, signOf(expression.op), right), expression.position);
}

Fragment Translator::logical(const Expression& expression) {
    if (expression.kind == ExpressionKind::logicalNot)
        return conditionOf("(NOT " + condition(expression.operands[0], "NOT").sql + ")", expression.position);
    const bool isAnd = expression.op == Operator::logicalAnd;
    const char* const word = isAnd ? "AND" : "OR";
    std::vector<std::string> texts;
    std::map<std::vector<std::string>, std::vector<std::string>> byColumns;
    for (Expression* const link : expression.operands) {
        Fragment fragment = condition(link, word);
        (fragment.rowColumns.empty() ? texts : byColumns[fragment.rowColumns])
            .push_back(std::move(fragment.sql));
    }
    const std::string_view joint = isAnd ? " AND " : " OR ";
    for (const auto& [columns, conditions] : byColumns) {
        std::string all = chained(conditions, joint);
        texts.push_back(conditions.size() < worthRemembering ? std::move(all) : remembered(columns, all));
    }
    return conditionOf(chained(texts, joint), expression.position);
}

/// The condition, asked once for each combination of the columns' values.
std::string Translator::remembered(const std::vector<std::string>& columns, const std::string& condition) {
    // As a value a chain would be worked out to its end, as a condition only until it is decided.
    return rememberedNumber(columns, "CASE WHEN " + condition + " THEN 1 ELSE 0 END");
}

std::string Translator::rememberedNumber(const std::vector<std::string>& columns, const std::string& number) {
    const std::string place = parameter(Translation::memory) + "," + std::to_string(rememberedCount_++);
    std::string values;
    for (const std::string& column : columns)
        values += "," + column;
    return "ifnull(ts_recalled(" + place + values + "),ts_noted(" + place + "," + number + "))";
}

Fragment Translator::isNull(const Expression& expression) {
    const Fragment operand = value(*expression.operands[0]);
    return conditionOf("(" + operand.sql + (expression.negated ? " IS NOT NULL)" : " IS NULL)"),
                       expression.position);
}

Fragment Translator::inList(const Expression& expression) {
    const Fragment subject = value(*expression.operands[0]);
    // Where all agree on one SQLite representation the list stays a list, which an index can serve.
    bool uniform = true;
    std::string list;
    std::vector<std::string> alternatives;
    std::string common;
    for (std::size_t index = 1; index < expression.operands.size(); ++index) {
        Fragment left = subject;
        Fragment right = value(*expression.operands[index]);
        makeComparable(left, right);
        if (right.type.isText()) collate(left); // IN takes the collation of its left side alone
        if (index == 1) common = left.sql;
        uniform = uniform && left.sql == common;
        if (index > 1) list += ',';
        list += right.sql;
        alternatives.push_back(compared(left, "=", right));
    }
    if (uniform)
        return conditionOf("(" + common + (expression.negated ? " NOT IN (" : " IN (") + list + "))",
                           expression.position);
    return conditionOf((expression.negated ? "(NOT " : "(") + chained(alternatives, " OR ") + ")",
                       expression.position);
}

/// `T.KEY IN (SELECT T.KEY FROM T WHERE …)` with the table's identity on both sides asks the row
/// itself, and so does this translation, instead of collecting the keys of half the table first.
std::optional<Fragment> Translator::ownRowCondition(const Expression& expression) {
    Expression& subject = *expression.operands[0];
    const Query& query = *expression.query;
    const SelectBranch& branch = *query.branches.front();
    const bool plain = scope_ != nullptr && subject.kind == ExpressionKind::column &&
                       query.branches.size() == 1 && branch.from.size() == 1 &&
                       branch.from.front().derived == nullptr && branch.items.size() == 1 &&
                       branch.items.front().expression != nullptr &&
                       branch.items.front().expression->kind == ExpressionKind::column &&
                       branch.where != nullptr && branch.groupBy.empty() && branch.having == nullptr &&
                       branch.top == nullptr && !branch.aggregates && query.orderBy.empty();
    if (!plain) return std::nullopt;
    const Scope::Place place = scope_->find(subject);
    const Source& source = *place.source;
    const FromItem& from = branch.from.front();
    if (source.table == nullptr || source.optional || !source.table->column(place.column).identity ||
        &table(from.table) != source.table)
        return std::nullopt;

    Scope inner(scope_);
    Source row = source;
    const Name& name = from.alias.empty() ? from.table : from.alias;
    row.folded = name.folded;
    row.written = name.written;
    inner.add(std::move(row));
    const Scope::Place item = inner.find(*branch.items.front().expression);
    if (item.scope != &inner || item.column != place.column) return std::nullopt;
    value(subject); // it counts as used where it stands
    const auto usedBefore = static_cast<std::ptrdiff_t>(usedColumns_.size());
    const int sourcesBefore = sourceCount_;
    const Fragment where = [&] {
        const EnteredScope inside(scope_, &inner);
        return condition(branch.where, "WHERE");
    }();
    Fragment result = conditionOf("(" + where.sql + (expression.negated ? " IS NOT TRUE)" : " IS TRUE)"),
                                  expression.position);

    // Sources that came since belong to subqueries inside the condition.
    std::set<int> columns;
    for (auto used = usedColumns_.begin() + usedBefore; used != usedColumns_.end(); ++used) {
        if (used->first > sourcesBefore) continue;
        if (used->first != source.id) return result;
        columns.insert(used->second);
    }
    for (const int column : columns)
        result.rowColumns.push_back(source.columnSql(static_cast<std::size_t>(column)));
    return result;
}

Fragment Translator::inQuery(const Expression& expression) {
    if (auto condition = ownRowCondition(expression)) return *std::move(condition);
    Fragment left = value(*expression.operands[0]);
    QueryText text = queryText(*expression.query, true);
    if (text.columns.size() != 1)
        failSyntax("The query after IN has to have one column", expression.query->position);
    Fragment right{.sql = "s.c1",
                   .type = text.columns[0].type,
                   .position = expression.query->position,
                   .collated = text.columns[0].collated};
    makeComparable(left, right);
    if (left.type.isText()) collate(left);
    std::string sql = "(" + left.sql + (expression.negated ? " NOT IN (" : " IN (");
    sql += right.sql == "s.c1" ? text.sql : "SELECT " + right.sql + " FROM (" + text.sql + ") s";
    return conditionOf(sql + "))", expression.position);
}

Fragment Translator::exists(const Expression& expression) {
    return conditionOf("EXISTS (" + queryText(*expression.query, true).sql + ")", expression.position);
}

Fragment Translator::like(const Expression& expression) {
    std::string sql = expression.negated ? "(NOT ts_like(" : "ts_like(";
    for (std::size_t index = 0; index < expression.operands.size(); ++index) {
        Fragment operand = value(*expression.operands[index]);
        if (operand.type.kind == TypeKind::dateTime)
            failConversion("LIKE on a date is not supported", operand.position);
        if (!operand.type.isText()) operand = convert(std::move(operand), Type::text(Type::unlimited));
        sql += (index == 0 ? "" : ",") + operand.sql;
    }
    if (expression.operands.size() > 2) sql += "," + std::to_string(expression.position);
    return conditionOf(sql + (expression.negated ? "))" : ")"), expression.position);
}

Fragment Translator::between(const Expression& expression) {
    Fragment low = value(*expression.operands[1]);
    Fragment high = value(*expression.operands[2]);
    Fragment left = value(*expression.operands[0]);
    Fragment again = left;
    makeComparable(left, low);
    makeComparable(again, high);
    const std::string sql = compared(left, ">=", low) + " AND " + compared(again, "<=", high);
    return conditionOf((expression.negated ? "(NOT (" : "((") + sql + "))", expression.position);
}

} // namespace tellurix::embedded
