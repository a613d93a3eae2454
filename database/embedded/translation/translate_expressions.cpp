#include "database/embedded/syntax/chained.h"
#include "database/embedded/translation/Translator.h"

#include "database/embedded/values/Fault.h"
#include "database/embedded/values/decimal_units.h"
#include "database/embedded/values/packed.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ranges>
#include <set>

namespace tellurix::embedded {

namespace {

struct ArithmeticNames {
    const char* integer;
    const char* decimal;
    const char* floating;
};

ArithmeticNames namesOf(Operator op) {
    switch (op) {
    case Operator::add:
        return {"ts_add(", "ts_dadd(", "+"};
    case Operator::subtract:
        return {"ts_sub(", "ts_dsub(", "-"};
    case Operator::multiply:
        return {"ts_mul(", "ts_dmul(", "*"};
    case Operator::divide:
        return {"ts_div(", "ts_ddiv(", nullptr};
    default:
        return {"ts_mod(", "ts_dmod(", nullptr};
    }
}

/// The type that a NULL has in a calculation: that of the other value, of which a date takes days.
Type typeBeside(const Fragment& other) {
    return other.type.kind == TypeKind::dateTime ? Type::integer() : other.type;
}

Type joinedType(const Type& left, const Type& right) {
    Type type = Type::text(Type::unlimited);
    if (left.length != Type::unlimited && right.length != Type::unlimited)
        type.length = std::min(left.length + right.length, 4000);
    return type;
}

Type decimalResult(Operator op, const Type& left, const Type& right) {
    switch (op) {
    case Operator::multiply:
        return productType(left, right);
    case Operator::divide:
        return quotientType(left, right);
    case Operator::modulo: {
        const int scale = std::max(left.scale, right.scale);
        const int whole = std::min(left.precision - left.scale, right.precision - right.scale);
        return Type::decimal(std::clamp(whole + scale, 1, Type::maxPrecision), scale);
    }
    default:
        return sumType(left, right);
    }
}

} // namespace

int Variables::find(std::string_view folded) const {
    const auto found = scalarByName.find(folded);
    return found == scalarByName.end() ? none : found->second;
}

int Variables::require(const Name& name) const {
    const int number = find(name.folded);
    if (number == none)
        failUnknownName("The variable " + std::string(name.written) + " is not declared", name.position);
    return number;
}

Fragment Translator::any(Expression& expression) {
    // NULLIF, BETWEEN and CASE write a value more than once, which nested ones do again and again.
    constexpr std::size_t longestText = 2'000'000;
    const Depth depth(*this, expression.position);
    const std::size_t before = scope_ == nullptr ? 0 : scope_->looseColumns();
    Fragment fragment = dispatch(expression);
    const bool grows =
        fragment.literal == Fragment::Literal::none && fragment.type.kind != TypeKind::condition;
    if (grows && fragment.sql.size() > longestText)
        failSyntax("The expression is too long", expression.position);
    if (scope_ != nullptr) scope_->finish(expression, before);
    return fragment;
}

Fragment Translator::value(Expression& expression) {
    Fragment fragment = any(expression);
    if (fragment.type.kind == TypeKind::condition)
        failSyntax("A condition stands where a value is needed", expression.position);
    return fragment;
}

Fragment Translator::condition(Expression* expression, std::string_view place) {
    Fragment fragment = any(*expression);
    if (fragment.type.kind != TypeKind::condition)
        failSyntax("A value stands where " + std::string(place) + " needs a condition", expression->position);
    return fragment;
}

Fragment Translator::dispatch(Expression& expression) {
    switch (expression.kind) {
    case ExpressionKind::nullLiteral:
        return nullFragment(expression.position);
    case ExpressionKind::integerLiteral:
    case ExpressionKind::decimalLiteral:
    case ExpressionKind::floatLiteral:
    case ExpressionKind::textLiteral:
        return literal(expression);
    case ExpressionKind::column:
        return column(expression);
    case ExpressionKind::variable:
        return variable(expression);
    case ExpressionKind::negate:
        return negate(expression);
    case ExpressionKind::arithmetic:
        return arithmetic(expression);
    case ExpressionKind::comparison:
        return comparison(expression);
    case ExpressionKind::logical:
    case ExpressionKind::logicalNot:
        return logical(expression);
    case ExpressionKind::isNull:
        return isNull(expression);
    case ExpressionKind::inList:
        return inList(expression);
    case ExpressionKind::inQuery:
        return inQuery(expression);
    case ExpressionKind::exists:
        return exists(expression);
    case ExpressionKind::like:
        return like(expression);
    case ExpressionKind::between:
        return between(expression);
    case ExpressionKind::caseWhen:
        return caseWhen(expression);
    case ExpressionKind::simpleCase:
        return simpleCase(expression);
    case ExpressionKind::cast:
        return cast(expression);
    case ExpressionKind::function:
        return function(expression);
    case ExpressionKind::aggregate:
        return aggregate(expression);
    case ExpressionKind::datePart:
        return datePart(expression);
    case ExpressionKind::subquery:
        return subquery(expression);
    }
    failSyntax("This expression is not supported", expression.position);
}

Fragment Translator::literal(const Expression& expression) {
    const std::string_view text = expression.name.written;
    const char* const end = text.data() + text.size();
    if (expression.kind == ExpressionKind::textLiteral) return textFragment(text, expression.position);
    if (expression.kind == ExpressionKind::floatLiteral) {
        double number = 0;
        // "1e" and "1e+" are 1 on the server.
        const std::size_t exponent = text.find_first_of("eE");
        const bool cut = text.find_first_of("0123456789", exponent) == std::string_view::npos;
        const std::string digits = std::string(text.substr(0, cut ? exponent : text.size()));
        if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc{})
            failConversion("The number " + digits + " does not fit float", expression.position);
        std::array<char, 32> buffer{};
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                           std::chars_format::scientific);
        return {.sql = std::string(buffer.data(), written.ptr),
                .type = Type::of(TypeKind::floating),
                .position = expression.position};
    }
    if (expression.kind == ExpressionKind::integerLiteral) {
        std::int64_t number = 0;
        if (std::from_chars(text.data(), end, number).ec == std::errc{} &&
            number <= largestOf(TypeKind::integer))
            return exactFragment(number, Type::integer(), expression.position);
    }
    return decimalLiteral(expression);
}

Fragment Translator::decimalLiteral(const Expression& expression) {
    const std::string_view text = expression.name.written;
    std::int64_t units = 0;
    int scale = 0;
    int precision = 0;
    bool afterPoint = false;
    for (const char character : text) {
        if (character == '.') {
            afterPoint = true;
            continue;
        }
        if (units > (largestUnits - 9) / 10)
            failConversion("The number " + std::string(text) + " has more than 18 digits",
                           expression.position);
        units = units * 10 + (character - '0');
        scale += afterPoint ? 1 : 0;
        if (units != 0 || afterPoint) ++precision;
    }
    if (scale > Type::maxPrecision || precision > Type::maxPrecision)
        failConversion("The number " + std::string(text) + " has more than 18 digits", expression.position);
    return exactFragment(units, Type::decimal(std::max(precision, 1), scale), expression.position);
}

Fragment Translator::column(Expression& expression) {
    if (scope_ == nullptr)
        failUnknownName("The column " + std::string(expression.name.written) + " stands outside a query",
                        expression.position);
    const Scope::Place place = scope_->find(expression);
    const auto index = static_cast<std::size_t>(place.column);
    expression.source = place.source->id;
    expression.column = place.column;
    place.scope->use(expression);
    usedColumns_.emplace_back(expression.source, expression.column);
    return {.sql = place.source->columnSql(index),
            .type = place.source->columnType(index),
            .position = expression.position,
            .collated = place.source->isCollated(index)};
}

std::string Translator::parameter(int variable) {
    auto found = std::find(parameters_.begin(), parameters_.end(), variable);
    if (found == parameters_.end()) found = parameters_.insert(parameters_.end(), variable);
    return "?" + std::to_string(found - parameters_.begin() + 1);
}

Fragment Translator::variable(const Expression& expression) {
    const int number = variables_.require(expression.name);
    return {.sql = parameter(number),
            .type = variables_.scalars[static_cast<std::size_t>(number)].type,
            .position = expression.position};
}

Fragment Translator::negate(const Expression& expression) {
    Fragment operand = value(*expression.operands[0]);
    operand.position = expression.position;
    if (operand.isNull()) return operand;
    if (!operand.type.isNumber() || operand.type.kind == TypeKind::bit)
        failConversion("A value of type " + describe(operand.type) + " has no negative", expression.position);
    if (operand.literal == Fragment::Literal::exact)
        return exactFragment(-operand.units, operand.type, expression.position);
    if (operand.type.isIntegral()) {
        const TypeKind kind = std::max(operand.type.kind, TypeKind::smallInt);
        operand.sql = "ts_sub(0," + operand.sql + "," + std::to_string(static_cast<int>(kind)) + "," +
                      std::to_string(expression.position) + ")";
        operand.type = Type::of(kind);
    } else {
        operand.sql = "(-" + operand.sql + ")";
        operand.literal = Fragment::Literal::none;
    }
    return operand;
}

/// Walks along a chain such as a + b - c from its first sign on, whatever its length.
Fragment Translator::arithmetic(const Expression& expression) {
    std::vector<const Expression*> signs{&expression};
    while (signs.back()->operands[0]->kind == ExpressionKind::arithmetic)
        signs.push_back(signs.back()->operands[0]);
    const std::size_t before = scope_ == nullptr ? 0 : scope_->looseColumns();
    Fragment left = value(*signs.back()->operands[0]);
    std::vector<std::string> joined; // the texts that `left` is made of
    const auto join = [&] {
        if (!joined.empty()) left.sql = chained(std::exchange(joined, {}), "||");
    };
    // SQLite takes far fewer; without a limit the text would grow with the square of the chain first.
    constexpr std::size_t mostCalculations = 1'000;
    std::size_t calculations = 0;
    for (const Expression* const sign : signs | std::views::reverse) {
        Fragment right = value(*sign->operands[1]);
        if (left.isNull()) left.type = typeBeside(right);
        if (right.isNull()) right.type = typeBeside(left);
        if (sign->op == Operator::add && left.type.isText() && right.type.isText()) {
            if (joined.empty()) joined.push_back(std::move(left.sql));
            joined.push_back(std::move(right.sql));
            left = {.sql = {}, .type = joinedType(left.type, right.type), .position = left.position};
        } else {
            if (++calculations > mostCalculations)
                failSyntax("The statement is nested too deeply", sign->position);
            join();
            left = calculated(*sign, std::move(left), std::move(right));
        }
        if (scope_ != nullptr && sign != &expression) scope_->finish(*sign, before);
    }
    join();
    return left;
}

/// Neither of two NULLs has a type; one of them has the other value's.
Fragment Translator::calculated(const Expression& expression, Fragment left, Fragment right) {
    if (left.isNull()) return nullFragment(expression.position);
    const bool bothTexts = left.type.isText() && right.type.isText();
    if (left.type.kind == TypeKind::dateTime || right.type.kind == TypeKind::dateTime)
        return shiftedDate(expression, std::move(left), std::move(right));
    const auto common = bothTexts ? std::nullopt : commonType(left.type, right.type);
    if (!common || !common->isNumber())
        failConversion("A value of type " + describe(left.type) + " and one of type " + describe(right.type) +
                           " cannot be calculated with",
                       expression.position);
    if (left.type.isText()) left = convert(std::move(left), right.type);
    if (right.type.isText()) right = convert(std::move(right), left.type);

    const ArithmeticNames names = namesOf(expression.op);
    const std::string position = std::to_string(expression.position);
    Fragment result{.sql = {}, .type = {}, .position = expression.position};
    if (common->kind == TypeKind::floating) {
        if (expression.op == Operator::modulo)
            failConversion("The remainder of a float is not supported", expression.position);
        left = convert(std::move(left), *common);
        right = convert(std::move(right), *common);
        result.type = *common;
        result.sql = names.floating != nullptr
                         ? "(" + left.sql + names.floating + right.sql + ")"
                         : "ts_fdiv(" + left.sql + "," + right.sql + "," + position + ")";
        return result;
    }
    const bool decimal = common->isDecimal();
    std::string facts;
    if (decimal) {
        const Type leftType = decimalTypeOf(left);
        const Type rightType = decimalTypeOf(right);
        result.type = decimalResult(expression.op, leftType, rightType);
        facts = std::to_string(PackedScales{leftType.scale, rightType.scale, result.type.scale}.pack());
    } else {
        result.type = Type::of(std::max(common->kind, TypeKind::tinyInt));
        facts = std::to_string(static_cast<int>(result.type.kind));
    }
    result.sql.reserve(left.sql.size() + right.sql.size() + 32);
    result.sql += decimal ? names.decimal : names.integer;
    result.sql += left.sql;
    result.sql += ',';
    result.sql += right.sql;
    result.sql += ',';
    result.sql += facts;
    result.sql += ',';
    result.sql += position;
    result.sql += ')';
    return result;
}

/// A moment plus or minus a number of days, parts of days included.
Fragment Translator::shiftedDate(const Expression& expression, Fragment left, Fragment right) {
    const bool plus = expression.op == Operator::add;
    if (plus && right.type.kind == TypeKind::dateTime) std::swap(left, right);
    const bool possible = left.type.kind == TypeKind::dateTime && !left.type.dayOnly &&
                          right.type.isNumber() && (plus || expression.op == Operator::subtract);
    if (!possible)
        failConversion("A value of type " + describe(left.type) + " and one of type " + describe(right.type) +
                           " cannot be calculated with; DATEADD and DATEDIFF calculate with dates",
                       expression.position);
    const std::string days = plus ? right.sql : "-(" + right.sql + ")";
    const std::string position = "," + std::to_string(expression.position) + ")";
    Fragment moved{.sql = {}, .type = Type::dateTime(), .position = expression.position};
    if (right.type.kind == TypeKind::floating)
        moved.sql = "ts_fshift(" + left.sql + "," + days + position;
    else
        moved.sql = "ts_shift(" + left.sql + "," + days + "," + std::to_string(asDecimal(right.type).scale) +
                    position;
    return moved;
}

Fragment Translator::caseWhen(const Expression& expression) {
    std::vector<Fragment> conditions;
    std::vector<Fragment> results;
    const std::size_t pairs = expression.operands.size() / 2;
    for (std::size_t index = 0; index < pairs; ++index) {
        conditions.push_back(condition(expression.operands[2 * index], "WHEN"));
        results.push_back(value(*expression.operands[2 * index + 1]));
    }
    if (expression.hasElse) results.push_back(value(*expression.operands.back()));

    // Which of many conditions on a row is the first to hold is remembered for the row's values.
    std::set<std::string> columns;
    bool remembers = conditions.size() >= worthRemembering && expression.hasElse;
    for (const Fragment& asked : conditions) {
        remembers = remembers && !asked.rowColumns.empty();
        columns.insert(asked.rowColumns.begin(), asked.rowColumns.end());
    }
    for (const Fragment& result : results)
        remembers = remembers && result.literal == Fragment::Literal::exact && result.type.isIntegral();
    Fragment choice = caseText("CASE", std::move(conditions), std::move(results), expression.position);
    if (remembers) choice.sql = rememberedNumber({columns.begin(), columns.end()}, choice.sql);
    return choice;
}

Fragment Translator::simpleCase(const Expression& expression) {
    std::vector<Fragment> conditions;
    std::vector<Fragment> results;
    const std::size_t pairs = (expression.operands.size() - 1) / 2;
    for (std::size_t index = 0; index < pairs; ++index) {
        // Each branch compares for itself: the value meets texts here and numbers there.
        Fragment left = value(*expression.operands[0]);
        Fragment right = value(*expression.operands[2 * index + 1]);
        makeComparable(left, right);
        conditions.push_back({.sql = left.sql + "=" + right.sql, .type = Type::condition()});
        results.push_back(value(*expression.operands[2 * index + 2]));
    }
    if (expression.hasElse) results.push_back(value(*expression.operands.back()));
    return caseText("CASE", std::move(conditions), std::move(results), expression.position);
}

Fragment Translator::caseText(std::string sql, std::vector<Fragment> conditions,
                              std::vector<Fragment> results, std::size_t position) {
    Type type;
    for (const Fragment& result : results) {
        const auto common = commonType(type, result.type);
        if (!common)
            failConversion("The branches of CASE have the types " + describe(type) + " and " +
                               describe(result.type) + ", which do not go together",
                           result.position);
        type = *common;
    }
    for (std::size_t index = 0; index < results.size(); ++index) {
        const std::string branch = convert(std::move(results[index]), type).sql;
        if (index < conditions.size())
            sql += " WHEN " + conditions[index].sql + " THEN " + branch;
        else
            sql += " ELSE " + branch;
    }
    return {.sql = "(" + sql + " END)", .type = type, .position = position};
}

Fragment Translator::subquery(const Expression& expression) {
    const Query& query = *expression.query;
    const SelectBranch& branch = *query.branches.front();
    const std::string position = std::to_string(expression.position);
    const auto only = [&](const std::string& sql) { return "ts_only(" + sql + "," + position + ")"; };

    const bool single = query.branches.size() == 1 && !branch.distinct && branch.groupBy.empty() &&
                        branch.having == nullptr && branch.top == nullptr;
    const bool oneRow = single && (branch.aggregates || branch.from.empty());
    Type type;
    QueryText text;
    if (single && !oneRow) {
        text = queryText(query, false, [&](Fragment item, std::size_t) {
            type = item.type;
            if (!choosesOneRow(branch)) item.sql = only(item.sql);
            return item;
        });
    } else {
        text = queryText(query, true);
    }
    if (text.columns.size() != 1)
        failSyntax("A subquery that stands for a value has to have one column", expression.position);
    if (type.kind == TypeKind::null) type = text.columns[0].type;
    std::string sql =
        oneRow || single ? std::move(text.sql) : "SELECT " + only("s.c1") + " FROM (" + text.sql + ") s";
    return {.sql = "(" + sql + ")", .type = type, .position = expression.position};
}

} // namespace tellurix::embedded
