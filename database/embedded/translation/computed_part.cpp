#include "database/embedded/translation/computed_part.h"

#include <algorithm>
#include <functional>

namespace tellurix::embedded {

namespace {

bool isVariable(const Name& table) {
    return table.written.starts_with('@');
}

/// Walks over everything that a statement reads. What is still to be looked at waits in lists, not on the
/// stack, because chains can be long.
class Reading {
public:
    using Visit = std::function<void(const Expression&)>;

    void add(const Expression* expression) {
        if (expression != nullptr) expressions_.push_back(expression);
    }
    void add(const Query* query) {
        if (query != nullptr) queries_.push_back(query);
    }

    void walk(const Visit& visit) {
        while (!expressions_.empty() || !queries_.empty()) {
            if (!expressions_.empty()) {
                const Expression& expression = *expressions_.back();
                expressions_.pop_back();
                visit(expression);
                for (const Expression* const operand : expression.operands)
                    add(operand);
                add(expression.query);
            } else {
                const Query& query = *queries_.back();
                queries_.pop_back();
                addParts(query);
            }
        }
    }

    /// Whether what has been added needs nothing but variables.
    bool isSelfContained() {
        bool timeless = true;
        walk([&](const Expression& expression) {
            const std::string_view name = expression.name.folded;
            timeless = timeless && !(expression.kind == ExpressionKind::function &&
                                     (name == "getdate" || name == "ident_current"));
        });
        return timeless && !readsFile_;
    }

private:
    void addParts(const Query& query) {
        for (const SelectBranch* const branch : query.branches) {
            add(branch->top);
            for (const SelectItem& item : branch->items)
                add(item.expression);
            for (const FromItem& item : branch->from) {
                readsFile_ = readsFile_ || (item.derived == nullptr && !isVariable(item.table));
                add(item.derived);
                add(item.on);
            }
            add(branch->where);
            for (const Expression* const group : branch->groupBy)
                add(group);
            add(branch->having);
        }
        for (const OrderItem& item : query.orderBy)
            add(item.expression);
    }

    std::vector<const Expression*> expressions_;
    std::vector<const Query*> queries_;
    bool readsFile_ = false;
};

bool isSelfContained(const Statement& statement);

bool computes(const SelectStatement& select) {
    Reading reading;
    reading.add(select.query);
    return select.query->assigns && reading.isSelfContained();
}

bool computes(const InsertStatement& insert) {
    Reading reading;
    for (const List<Expression*>& row : insert.rows)
        for (const Expression* const value : row)
            reading.add(value);
    reading.add(insert.query);
    return isVariable(insert.table) && reading.isSelfContained();
}

bool computes(const TableDefinition& table) {
    Reading reading;
    for (const ColumnDefinition& column : table.columns)
        reading.add(column.defaultValue);
    return isVariable(table.table) && reading.isSelfContained();
}

bool computes(const DeclareVariable& declaration) {
    Reading reading;
    reading.add(declaration.value);
    return reading.isSelfContained();
}

bool computes(const SetVariable& set) {
    Reading reading;
    reading.add(set.value);
    return reading.isSelfContained();
}

bool computes(const SetOption& set) {
    return set.option != Option::identityInsert;
}

bool computes(const Block& block) {
    return std::ranges::all_of(block.statements, isSelfContained);
}

bool computes(const IfStatement& choice) {
    Reading reading;
    reading.add(choice.condition);
    return reading.isSelfContained() && isSelfContained(choice.then) &&
           (!choice.hasElse || isSelfContained(choice.otherwise));
}

bool computes(const WhileStatement& loop) {
    Reading reading;
    reading.add(loop.condition);
    return reading.isSelfContained() && isSelfContained(loop.body);
}

/// Changes and deletions of rows are rare in a computation, and tables are made and dropped for others to
/// see.
template <typename Other>
bool computes(const Other&) {
    return false;
}

bool isSelfContained(const Statement& statement) {
    return std::visit([](const auto* node) { return computes(*node); }, statement);
}

/// Whether it answers with rows or writes into the file, and leaves table variables as they are.
bool leavesVariables(const Statement& statement) {
    if (const auto* const* const insert = std::get_if<InsertStatement*>(&statement))
        return !isVariable((*insert)->table);
    return std::holds_alternative<SelectStatement*>(statement) ||
           std::holds_alternative<SetVariable*>(statement);
}

} // namespace

std::size_t computedPart(const Block& batch) {
    const auto& statements = batch.statements;
    const auto end = std::ranges::find_if_not(statements, isSelfContained);
    const bool loops = std::any_of(statements.begin(), end, [](const Statement& each) {
        return std::holds_alternative<WhileStatement*>(each);
    });
    if (!loops || !std::all_of(end, statements.end(), leavesVariables)) return 0;
    return static_cast<std::size_t>(end - statements.begin());
}

std::vector<std::string_view> comparedColumns(const Block& batch) {
    Reading reading;
    for (const Statement& statement : batch.statements) {
        if (const auto* const* const select = std::get_if<SelectStatement*>(&statement))
            reading.add((*select)->query);
        if (const auto* const* const insert = std::get_if<InsertStatement*>(&statement))
            reading.add((*insert)->query);
    }
    std::vector<std::string_view> columns;
    reading.walk([&](const Expression& expression) {
        if (expression.kind != ExpressionKind::comparison || expression.op != Operator::equal) return;
        for (const Expression* const side : expression.operands)
            if (side->kind == ExpressionKind::column &&
                std::ranges::find(columns, side->name.folded) == columns.end())
                columns.push_back(side->name.folded);
    });
    return columns;
}

} // namespace tellurix::embedded
