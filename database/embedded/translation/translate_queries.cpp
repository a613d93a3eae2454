#include "database/embedded/translation/Translator.h"
#include "database/embedded/translation/carried_keys.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

#include <algorithm>
#include <charconv>

namespace tellurix::embedded {

/// The parts of one SELECT while they are put together.
struct Translator::Branch {
    explicit Branch(Scope* outer) : scope(outer) {}

    Scope scope;
    std::vector<Fragment> items;
    std::vector<Name> names;
    bool distinct = false;
    std::string rest; ///< from FROM to HAVING
};

Translation Translator::query(const SelectStatement& select) {
    start();
    QueryText text = queryText(*select.query, false);
    Translation translation = finish(std::move(text.sql));
    translation.columns = resultColumns(text.columns);
    return translation;
}

Translation Translator::assignments(const SelectStatement& select) {
    start();
    const List<SelectItem>& items = select.query->branches.front()->items;
    QueryText text = singleText(*select.query, false, [&](Fragment item, std::size_t index) {
        const int number = variables_.require(items[index].variable);
        return convert(std::move(item), variables_.scalars[static_cast<std::size_t>(number)].type,
                       {.purpose = Destination::Purpose::cast});
    });
    // The server sets the variables row by row; here every row sees them as they were before.
    for (const SelectItem& item : items)
        if (std::ranges::find(parameters_, variables_.require(item.variable)) != parameters_.end())
            failSyntax("A SELECT from a table that sets " + std::string(item.variable.written) +
                           " cannot use it at the same time",
                       item.variable.position);
    return finish(std::move(text.sql));
}

std::shared_ptr<const std::vector<Translation::Column>>
Translator::resultColumns(const std::vector<OutputColumn>& columns) {
    std::vector<Translation::Column> result;
    result.reserve(columns.size());
    for (const OutputColumn& column : columns)
        result.push_back({std::string(column.name.written), column.type});
    return std::make_shared<const std::vector<Translation::Column>>(std::move(result));
}

Translation Translator::updatable(const SelectStatement& select) {
    start();
    const Query& query = *select.query;
    const SelectBranch& source = *query.branches.front();
    const bool oneTable = query.branches.size() == 1 && source.from.size() == 1 &&
                          source.from.front().derived == nullptr && !source.distinct && !source.aggregates &&
                          source.groupBy.empty() && source.having == nullptr;
    if (!oneTable || source.from.front().table.written.starts_with('@'))
        failSyntax("Only a query on one table, without groups, can be edited", query.position);
    Branch branch(nullptr);
    const EnteredScope inside(scope_, &branch.scope);
    fillBranch(branch, source, {});
    const Source& edited = branch.scope.sources().front();
    std::vector<OutputColumn> columns;
    for (std::size_t index = 0; index < branch.items.size(); ++index)
        columns.push_back({branch.names[index], branch.items[index].type, branch.items[index].collated});
    const std::string order = orderText(query, columns, &branch);
    branch.rest = "," + edited.sqlAlias + "._rowid_" + branch.rest;
    Translation translation = finish(branchText(branch, false) + order + topText(source));
    translation.columns = resultColumns(columns);
    translation.editedTable = edited.table->name();
    for (const SelectItem& item : source.items) {
        if (item.expression != nullptr)
            translation.editedColumns.push_back(
                item.expression->kind == ExpressionKind::column ? item.expression->column : Table::noColumn);
        else
            for (std::size_t each = 0; each < edited.columnCount(); ++each)
                translation.editedColumns.push_back(static_cast<int>(each));
    }
    return translation;
}

Translator::QueryText Translator::queryText(const Query& query, bool named, const EditItem& edit) {
    const Depth depth(*this, query.position);
    return query.branches.size() == 1 ? singleText(query, named, edit) : unionText(query, named);
}

Translator::QueryText Translator::singleText(const Query& query, bool named, const EditItem& edit) {
    const SelectBranch& source = *query.branches.front();
    Branch branch(scope_);
    const EnteredScope inside(scope_, &branch.scope);
    fillBranch(branch, source, edit);
    QueryText text;
    for (std::size_t index = 0; index < branch.items.size(); ++index)
        text.columns.push_back({branch.names[index], branch.items[index].type, branch.items[index].collated});
    text.sql = branchText(branch, named);
    text.sql += orderText(query, text.columns, &branch);
    branch.scope.requireGrouped();
    text.sql += topText(source);
    return text;
}

/// All branches take the types on which their columns agree.
Translator::QueryText Translator::unionText(const Query& query, bool named) {
    // SQLite goes down into them by recursion, and a session's stack is small.
    constexpr std::size_t mostBranches = 250;
    if (query.branches.size() > mostBranches)
        failSyntax("A UNION has at most " + std::to_string(mostBranches) + " branches",
                   query.branches[mostBranches]->position);
    std::vector<std::unique_ptr<Branch>> branches;
    for (const SelectBranch* const source : query.branches) {
        if (source->top != nullptr) failSyntax("TOP inside a UNION is not supported", source->top->position);
        branches.push_back(std::make_unique<Branch>(scope_));
        const EnteredScope inside(scope_, &branches.back()->scope);
        fillBranch(*branches.back(), *source, {});
        branches.back()->scope.requireGrouped();
        if (branches.back()->items.size() != branches.front()->items.size())
            failSyntax("The branches of a UNION have different numbers of columns", source->position);
    }
    QueryText text;
    for (std::size_t index = 0; index < branches.front()->items.size(); ++index) {
        Type type;
        for (const auto& branch : branches) {
            const auto common = commonType(type, branch->items[index].type);
            if (!common)
                failConversion("The branches of a UNION have the types " + describe(type) + " and " +
                                   describe(branch->items[index].type) + ", which do not go together",
                               branch->items[index].position);
            type = *common;
        }
        for (const auto& branch : branches) {
            Fragment& item = branch->items[index];
            item = convert(std::move(item), type);
            collate(item);
        }
        text.columns.push_back({branches.front()->names[index], type, type.isText()});
    }
    for (std::size_t index = 0; index < branches.size(); ++index) {
        if (index > 0) text.sql += query.branches[index]->unionAll ? " UNION ALL " : " UNION ";
        text.sql += branchText(*branches[index], named && index == 0);
    }
    text.sql += orderText(query, text.columns, nullptr);
    return text;
}

void Translator::fillBranch(Branch& branch, const SelectBranch& source, const EditItem& edit) {
    Scope& scope = branch.scope;
    branch.distinct = source.distinct;
    if (!source.from.empty()) branch.rest = fromText(source.from, source.where, scope);
    std::string where;
    if (source.where != nullptr) where = condition(source.where, "WHERE").sql;
    for (const auto& [narrowed, asked] : narrowing_) {
        if (narrowed != &source) continue;
        const Scope::Place group = scope.find(*asked->operands[0]);
        if (group.scope != &scope ||
            !group.source->columnType(static_cast<std::size_t>(group.column)).isIntegral())
            continue;
        const std::string key = condition(asked, "WHERE").sql;
        where = where.empty() ? key : "(" + where + ") AND " + key;
    }
    if (!where.empty()) branch.rest += " WHERE " + where;
    for (std::size_t index = 0; index < source.groupBy.size(); ++index) {
        Fragment group = value(*source.groupBy[index]);
        if (group.literal != Fragment::Literal::none)
            failSyntax("GROUP BY takes columns and expressions, not constants", group.position);
        collate(group);
        branch.rest += (index == 0 ? " GROUP BY " : ",") + group.sql;
    }
    scope.allowAggregates();
    if (source.aggregates || !source.groupBy.empty() || source.having != nullptr)
        scope.startGrouping(source.groupBy);
    for (const SelectItem& item : source.items) {
        if (item.expression == nullptr) {
            addStar(branch, item);
            continue;
        }
        Fragment fragment = value(*item.expression);
        if (edit) fragment = edit(std::move(fragment), branch.items.size());
        collate(fragment);
        branch.items.push_back(std::move(fragment));
        const bool column = item.expression->kind == ExpressionKind::column;
        branch.names.push_back(!item.alias.empty() ? item.alias : column ? item.expression->name : Name{});
    }
    if (source.having != nullptr) branch.rest += " HAVING " + condition(source.having, "HAVING").sql;
}

/// Asked while the items are translated: the names in WHERE have been found by then.
bool Translator::choosesOneRow(const SelectBranch& branch) const {
    if (branch.where == nullptr || scope_->sources().size() != 1) return false;
    const Source& source = scope_->sources().front();
    if (source.table == nullptr) return false;
    const auto isKey = [&](const Expression& side) {
        return side.kind == ExpressionKind::column && side.source == source.id &&
               source.table->column(side.column).identity;
    };
    const auto comesFromElsewhere = [&](const Expression& side) {
        return side.kind == ExpressionKind::integerLiteral || side.kind == ExpressionKind::variable ||
               (side.kind == ExpressionKind::column && side.source != source.id);
    };
    const std::function<bool(const Expression&)> oneRow = [&](const Expression& condition) {
        if (condition.op == Operator::logicalAnd)
            return std::ranges::any_of(condition.operands,
                                       [&](const Expression* each) { return oneRow(*each); });
        if (condition.kind != ExpressionKind::comparison || condition.op != Operator::equal) return false;
        const Expression& left = *condition.operands[0];
        const Expression& right = *condition.operands[1];
        return (isKey(left) && comesFromElsewhere(right)) || (isKey(right) && comesFromElsewhere(left));
    };
    return oneRow(*branch.where);
}

void Translator::addStar(Branch& branch, const SelectItem& item) {
    bool found = false;
    for (const Source& source : branch.scope.sources()) {
        if (!item.starQualifier.empty() && source.folded != item.starQualifier.folded) continue;
        found = true;
        for (std::size_t index = 0; index < source.columnCount(); ++index) {
            const std::string_view name = source.columnName(index);
            Expression* const column =
                defaults_.make<Expression>(defaults_, ExpressionKind::column, item.position);
            column->qualifier = {source.written, source.folded, item.position};
            column->name = {defaults_.keep(name), foldName(name, defaults_), item.position};
            branch.items.push_back(value(*column));
            branch.names.push_back(column->name);
        }
    }
    if (!found) failUnknownName("There is no table for * here", item.position);
}

std::string Translator::branchText(const Branch& branch, bool named) {
    std::size_t size = branch.rest.size() + 24;
    for (const Fragment& item : branch.items)
        size += item.sql.size() + 8;
    std::string sql;
    sql.reserve(size);
    sql += branch.distinct ? "SELECT DISTINCT " : "SELECT ";
    for (std::size_t index = 0; index < branch.items.size(); ++index) {
        if (index > 0) sql += ',';
        sql += branch.items[index].sql;
        if (named) {
            sql += " AS c";
            sql += std::to_string(index + 1);
        }
    }
    sql += branch.rest;
    return sql;
}

std::string Translator::fromText(const List<FromItem>& from, const Expression* where, Scope& scope) {
    std::string sql = " FROM ";
    for (const FromItem& item : from) {
        narrow(from, where, item, scope);
        switch (item.join) {
        case JoinKind::none:
            break;
        case JoinKind::inner:
            sql += " JOIN ";
            break;
        case JoinKind::left:
            sql += " LEFT JOIN ";
            break;
        case JoinKind::cross:
            sql += " CROSS JOIN ";
            break;
        }
        sql += fromItemText(item, scope);
        if (item.on != nullptr) sql += " ON " + condition(item.on, "ON").sql;
    }
    return sql;
}

bool Translator::isWholeNumber(const Expression& fixedValue) const {
    if (fixedValue.kind != ExpressionKind::variable) return true;
    const int number = variables_.find(fixedValue.name.folded);
    return number != Variables::none &&
           variables_.scalars[static_cast<std::size_t>(number)].type.isIntegral();
}

/// Whole numbers alone: they are equal to each other whatever their types are.
void Translator::narrow(const List<FromItem>& from, const Expression* where, const FromItem& item,
                        const Scope& scope) {
    for (const CarriedKey& key : carriedKeys(from, where, item)) {
        if (!isWholeNumber(*key.value)) continue;
        if (key.fixed != nullptr) {
            const Source* const source = scope.findSource(key.fixed->qualifier.folded);
            const int column =
                source == nullptr ? Table::noColumn : source->findColumn(key.fixed->name.folded);
            if (column == Table::noColumn ||
                !source->columnType(static_cast<std::size_t>(column)).isIntegral())
                continue;
        }
        auto* const group =
            defaults_.make<Expression>(defaults_, ExpressionKind::column, key.group->position);
        group->qualifier = key.group->qualifier;
        group->name = key.group->name;
        auto* const asked =
            defaults_.make<Expression>(defaults_, ExpressionKind::comparison, key.value->position);
        asked->op = Operator::equal;
        asked->operands.push_back(group);
        asked->operands.push_back(key.value);
        narrowing_.emplace_back(item.derived->branches.front(), asked);
    }
}

std::string Translator::fromItemText(const FromItem& item, Scope& scope) {
    Source source;
    source.id = ++sourceCount_;
    source.optional = item.join == JoinKind::left;
    source.sqlAlias = "t" + std::to_string(source.id);
    const Name& name = item.alias.empty() ? item.table : item.alias;
    source.folded = name.folded;
    source.written = name.written;
    std::string sql;
    if (item.derived != nullptr) {
        // A derived table sees nothing of the FROM clause that it stands in, only what is around it.
        const EnteredScope outside(scope_, scope.outer());
        QueryText text = queryText(*item.derived, true);
        for (const OutputColumn& column : text.columns)
            if (column.name.empty())
                failSyntax("Every column of " + std::string(item.alias.written) + " needs a name",
                           item.derived->position);
        source.derived = std::move(text.columns);
        sql = "(" + text.sql + ") AS " + source.sqlAlias;
    } else {
        source.table = &table(item.table);
        sql = source.table->sqlName() + " AS " + source.sqlAlias;
    }
    if (scope.findSource(source.folded) != nullptr)
        failSyntax("The name " + std::string(name.written) + " stands twice in FROM; give one an alias",
                   name.position);
    scope.add(std::move(source));
    return sql;
}

int Translator::orderedColumn(const Expression& expression, const std::vector<OutputColumn>& columns) const {
    const auto count = static_cast<int>(columns.size());
    if (expression.kind == ExpressionKind::integerLiteral) {
        int number = 0;
        const std::string_view digits = expression.name.written;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (result.ec != std::errc{} || number < 1 || number > count)
            failSyntax("ORDER BY " + std::string(digits) + ": the query has " + std::to_string(count) +
                           " columns",
                       expression.position);
        return number;
    }
    if (expression.kind != ExpressionKind::column || !expression.qualifier.empty()) return 0;
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const OutputColumn& column) {
        return column.name.folded == expression.name.folded;
    });
    return found == columns.end() ? 0 : static_cast<int>(found - columns.begin()) + 1;
}

std::string Translator::orderText(const Query& query, const std::vector<OutputColumn>& columns,
                                  const Branch* branch) {
    std::string sql;
    for (const OrderItem& item : query.orderBy) {
        sql += sql.empty() ? " ORDER BY " : ",";
        // The name of a column of the result goes before the name of a column of a table.
        const int column = orderedColumn(*item.expression, columns);
        if (column > 0) {
            sql += std::to_string(column);
        } else if (branch == nullptr) {
            failSyntax("ORDER BY of a UNION takes the names or numbers of its columns",
                       item.expression->position);
        } else {
            Fragment fragment = value(*item.expression);
            if (fragment.literal != Fragment::Literal::none)
                failSyntax("ORDER BY a constant has no meaning", item.expression->position);
            collate(fragment);
            const auto isItem = [&](const Fragment& other) { return other.sql == fragment.sql; };
            if (branch->distinct && std::none_of(branch->items.begin(), branch->items.end(), isItem))
                failSyntax("ORDER BY of SELECT DISTINCT takes what is selected", item.expression->position);
            sql += fragment.sql;
        }
        if (item.descending) sql += " DESC";
    }
    return sql;
}

std::string Translator::topText(const SelectBranch& branch) {
    if (branch.top == nullptr) return {};
    const Fragment rows = convert(value(*branch.top), Type::of(TypeKind::bigInt));
    return " LIMIT " + rows.sql;
}

} // namespace tellurix::embedded
