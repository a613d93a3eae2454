#include "embedded/Fault.h"
#include "embedded/Translator.h"
#include "embedded/date_parts.h"
#include "embedded/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

void requireArguments(const Expression& call, std::size_t fewest, std::size_t most) {
    if (call.operands.size() >= fewest && call.operands.size() <= most) return;
    std::string count = std::to_string(fewest);
    if (most != fewest) count += " or " + std::to_string(most);
    failSyntax("The function " + std::string(call.name.written) + " takes " + count + " arguments here",
               call.position);
}

std::string code(DatePart part) {
    return std::to_string(static_cast<int>(part));
}

} // namespace

Fragment Translator::function(const Expression& call) {
    using Function = Fragment (Translator::*)(const Expression&);
    static const NameMap<Function> functions{
        {"isnull", &Translator::isNullFunction}, {"coalesce", &Translator::coalesce},
        {"nullif", &Translator::nullIf},         {"round", &Translator::round},
        {"abs", &Translator::absolute},          {"left", &Translator::textEnd},
        {"right", &Translator::textEnd},         {"substring", &Translator::substring},
        {"upper", &Translator::changedText},     {"lower", &Translator::changedText},
        {"ltrim", &Translator::changedText},     {"rtrim", &Translator::changedText},
        {"len", &Translator::textLength},        {"year", &Translator::yearMonthDay},
        {"month", &Translator::yearMonthDay},    {"day", &Translator::yearMonthDay},
        {"getdate", &Translator::now},           {"ident_current", &Translator::identityOf},
    };
    const auto found = functions.find(call.name.folded);
    if (found == functions.end())
        failSyntax("The function " + std::string(call.name.written) + " is not supported", call.position);
    return (this->*found->second)(call);
}

/// The first argument's type holds for the result, so a longer replacement is cut.
Fragment Translator::isNullFunction(const Expression& call) {
    requireArguments(call, 2, 2);
    Fragment first = value(*call.operands[0]);
    Fragment second = value(*call.operands[1]);
    if (first.isNull()) return second;
    const Type type = first.type;
    Destination destination;
    if (type.isText() && !second.isNull()) destination.purpose = Destination::Purpose::cast;
    second = convert(std::move(second), type, destination);
    std::string sql;
    sql.reserve(first.sql.size() + second.sql.size() + 10);
    sql += "ifnull(";
    sql += first.sql;
    sql += ',';
    sql += second.sql;
    sql += ')';
    return {.sql = std::move(sql), .type = type, .position = call.position};
}

Fragment Translator::coalesce(const Expression& call) {
    constexpr std::size_t mostArguments = 100; // of a function of SQLite's
    if (call.operands.size() < 2 || call.operands.size() > mostArguments)
        failSyntax("COALESCE takes 2 to " + std::to_string(mostArguments) + " arguments", call.position);
    std::vector<Fragment> values;
    Type type;
    for (Expression* const operand : call.operands) {
        values.push_back(value(*operand));
        const auto common = commonType(type, values.back().type);
        if (!common)
            failConversion("The arguments of COALESCE have types that do not go together", operand->position);
        type = *common;
    }
    std::string sql = "coalesce(";
    for (std::size_t index = 0; index < values.size(); ++index)
        sql += (index == 0 ? "" : ",") + convert(std::move(values[index]), type).sql;
    return {.sql = sql + ")", .type = type, .position = call.position};
}

Fragment Translator::nullIf(const Expression& call) {
    requireArguments(call, 2, 2);
    Fragment result = value(*call.operands[0]);
    Fragment left = result;
    Fragment right = value(*call.operands[1]);
    makeComparable(left, right);
    return {.sql = "(CASE WHEN " + left.sql + "=" + right.sql + " THEN NULL ELSE " + result.sql + " END)",
            .type = result.type,
            .position = call.position};
}

Fragment Translator::round(const Expression& call) {
    requireArguments(call, 2, 2);
    Fragment number = value(*call.operands[0]);
    const Fragment decimals = integerArgument(call, 1);
    if (number.isNull()) return number;
    if (number.type.isText()) number = convert(std::move(number), Type::of(TypeKind::floating));
    if (!number.type.isNumber())
        failConversion("ROUND takes a number, not " + describe(number.type), call.position);
    Type type = number.type;
    if (type.kind == TypeKind::floating)
        return {.sql = "ts_fround(" + number.sql + "," + decimals.sql + ")",
                .type = type,
                .position = call.position};
    // Rounding up can need one digit more before the point.
    if (type.isDecimal() && !type.money)
        type.precision = static_cast<std::uint8_t>(std::min(type.precision + 1, Type::maxPrecision));
    return {.sql = "ts_round(" + number.sql + "," + std::to_string(type.scale) + "," + decimals.sql + "," +
                   std::to_string(call.position) + ")",
            .type = type,
            .position = call.position};
}

Fragment Translator::absolute(const Expression& call) {
    requireArguments(call, 1, 1);
    Fragment number = value(*call.operands[0]);
    if (number.isNull()) return number;
    if (!number.type.isNumber())
        failConversion("ABS takes a number, not " + describe(number.type), call.position);
    if (number.type.isIntegral()) {
        const Type type = Type::of(std::max(number.type.kind, TypeKind::integer));
        return {.sql = "ts_abs(" + number.sql + "," + std::to_string(static_cast<int>(type.kind)) + "," +
                       std::to_string(call.position) + ")",
                .type = type,
                .position = call.position};
    }
    return {.sql = "abs(" + number.sql + ")", .type = number.type, .position = call.position};
}

Fragment Translator::textArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::text(Type::unlimited));
}

Translator::TextArgument Translator::changedArgument(const Expression& call) {
    Fragment source = value(*call.operands[0]);
    Type type = source.type.isText() ? source.type : Type::text(Type::unlimited);
    type.padded = false;
    return {convert(std::move(source), Type::text(Type::unlimited)).sql, type};
}

Fragment Translator::integerArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::integer());
}

Fragment Translator::dateArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::dateTime());
}

Fragment Translator::textEnd(const Expression& call) {
    requireArguments(call, 2, 2);
    auto [text, type] = changedArgument(call);
    const Fragment count = integerArgument(call, 1);
    if (count.literal == Fragment::Literal::exact && count.units > 0 &&
        (type.length == Type::unlimited || count.units < type.length))
        type.length = static_cast<std::int32_t>(count.units);
    const char* const name = call.name.folded == "left" ? "ts_left(" : "ts_right(";
    return {.sql = name + text + "," + count.sql + "," + std::to_string(call.position) + ")",
            .type = type,
            .position = call.position};
}

Fragment Translator::substring(const Expression& call) {
    requireArguments(call, 3, 3);
    auto [text, type] = changedArgument(call);
    return {.sql = "ts_substring(" + text + "," + integerArgument(call, 1).sql + "," +
                   integerArgument(call, 2).sql + "," + std::to_string(call.position) + ")",
            .type = type,
            .position = call.position};
}

Fragment Translator::changedText(const Expression& call) {
    requireArguments(call, 1, 1);
    auto [text, type] = changedArgument(call);
    const std::string_view name = call.name.folded;
    std::string sql;
    if (name == "ltrim" || name == "rtrim")
        sql = std::string(name) + "(" + text + ",' ')";
    else
        sql = "ts_" + std::string(name) + "(" + text + ")";
    return {.sql = std::move(sql), .type = type, .position = call.position};
}

Fragment Translator::textLength(const Expression& call) {
    requireArguments(call, 1, 1);
    return {.sql = "ts_len(" + textArgument(call, 0).sql + ")",
            .type = Type::integer(),
            .position = call.position};
}

Fragment Translator::yearMonthDay(const Expression& call) {
    requireArguments(call, 1, 1);
    const DatePart part = call.name.folded == "year"    ? DatePart::year
                          : call.name.folded == "month" ? DatePart::month
                                                        : DatePart::day;
    return {.sql = "ts_datepart(" + code(part) + "," + dateArgument(call, 0).sql + ")",
            .type = Type::integer(),
            .position = call.position};
}

/// One statement has one moment, and a parameter can serve an index.
Fragment Translator::now(const Expression& call) {
    requireArguments(call, 0, 0);
    return {.sql = parameter(Translation::now), .type = Type::dateTime(), .position = call.position};
}

Fragment Translator::identityOf(const Expression& call) {
    requireArguments(call, 1, 1);
    const Expression& name = *call.operands[0];
    if (name.kind != ExpressionKind::textLiteral)
        failSyntax("IDENT_CURRENT takes the name of a table as a text", name.position);
    std::string folded = foldName(name.name.written);
    if (folded.starts_with("dbo.")) folded.erase(0, 4);
    const Table* const table = catalogue_.find(folded);
    const Type type = Type::decimal(Type::maxPrecision, 0);
    const bool has =
        table != nullptr && std::any_of(table->columns().begin(), table->columns().end(),
                                        [](const TableColumn& column) { return column.identity; });
    if (!has) return {.sql = "NULL", .type = type, .position = call.position};
    // Before the first row the server answers with the first key that it would give.
    return {.sql = "ifnull((SELECT seq FROM main.sqlite_sequence WHERE name=" + quoteText(table->name()) +
                   "),1)",
            .type = type,
            .position = call.position};
}

Fragment Translator::aggregate(const Expression& call) {
    if (scope_ == nullptr || !scope_->aggregatesAllowed())
        failSyntax("The aggregate " + std::string(call.name.written) + " must not stand here", call.position);
    if (call.operands.empty()) return {.sql = "count(*)", .type = Type::integer(), .position = call.position};
    if (call.operands.size() != 1) requireArguments(call, 1, 1);
    Scope* const scope = scope_;
    scope->enterAggregate();
    Fragment argument = value(*call.operands[0]);
    scope->leaveAggregate();
    const std::string_view name = call.name.folded;
    const std::string distinct = call.distinct ? "DISTINCT " : "";
    if (name == "count") {
        collate(argument);
        return {.sql = "count(" + distinct + argument.sql + ")",
                .type = Type::integer(),
                .position = call.position};
    }
    if (name == "sum" || name == "avg") return sum(call, argument);
    if (argument.type.kind == TypeKind::bit || argument.isNull())
        failConversion(std::string(call.name.written) + " of " + describe(argument.type) + " has no meaning",
                       call.position);
    collate(argument);
    return {.sql = std::string(name) + "(" + argument.sql + ")",
            .type = argument.type,
            .position = call.position};
}

Fragment Translator::sum(const Expression& call, const Fragment& argument) {
    if (!argument.type.isNumber() || argument.type.kind == TypeKind::bit)
        failConversion(std::string(call.name.written) + " of " + describe(argument.type) + " has no meaning",
                       call.position);
    const std::string text = (call.distinct ? "DISTINCT " : "") + argument.sql;
    const std::string position = std::to_string(call.position);
    Fragment total{.sql = "sum(" + text + ")", .type = argument.type, .position = call.position};
    if (argument.type.isIntegral()) {
        total.type = Type::of(std::max(argument.type.kind, TypeKind::integer));
        // Adding 0 checks that the total fits its type; on the way SQLite has 64 bits.
        total.sql = "ts_add(" + total.sql + ",0," + std::to_string(static_cast<int>(total.type.kind)) + "," +
                    position + ")";
    } else if (argument.type.isDecimal()) {
        total.type.precision = Type::maxPrecision;
    }
    if (call.name.folded == "sum") return total;
    const std::string count = "count(" + text + ")";
    if (argument.type.kind == TypeKind::floating)
        return {.sql = "avg(" + text + ")", .type = argument.type, .position = call.position};
    if (argument.type.isIntegral())
        return {.sql = "(" + total.sql + "/" + count + ")", .type = total.type, .position = call.position};
    const int scale = std::max<int>(argument.type.scale, 6);
    const std::int64_t scales = argument.type.scale | scale << 16;
    return {.sql = "(CASE WHEN " + count + ">0 THEN ts_ddiv(" + total.sql + "," + count + "," +
                   std::to_string(scales) + "," + position + ") END)",
            .type = Type::decimal(Type::maxPrecision, scale),
            .position = call.position};
}

Fragment Translator::cast(const Expression& call) {
    Fragment operand = value(*call.operands[0]);
    operand.position = call.operands[0]->position;
    Destination destination{.purpose = Destination::Purpose::cast};
    if (call.operands.size() > 1) {
        const Fragment style = value(*call.operands[1]);
        const bool known = style.literal == Fragment::Literal::exact && style.type.isIntegral();
        const auto number = static_cast<int>(style.units);
        const bool dateToText = operand.type.kind == TypeKind::dateTime && call.type.isText();
        const bool numberToText = operand.type.isNumber() && call.type.isText();
        const bool supported = dateToText ? isDateStyle(number) : numberToText && number == 0;
        if (!operand.isNull() && !(known && supported))
            failSyntax("CONVERT from " + describe(operand.type) + " to " + describe(call.type) +
                           " does not support this style",
                       call.operands[1]->position);
        destination.style = number;
    }
    Fragment result = convert(std::move(operand), call.type, destination);
    result.position = call.position;
    return result;
}

Fragment Translator::datePart(const Expression& call) {
    const auto part = datePartNamed(call.part.folded);
    const bool reads = call.name.folded == "datepart";
    const bool adds = call.name.folded == "dateadd";
    requireArguments(call, reads ? 1 : 2, reads ? 1 : 2);
    if (!part || !(reads ? canRead(*part) : adds ? canAdd(*part) : canCount(*part)))
        failSyntax(std::string(call.name.written) + " of " + std::string(call.part.written) +
                       " is not supported",
                   call.part.position);
    if (reads)
        return {.sql = "ts_datepart(" + code(*part) + "," + dateArgument(call, 0).sql + ")",
                .type = Type::integer(),
                .position = call.position};
    if (adds)
        return {.sql = "ts_dateadd(" + code(*part) + "," + integerArgument(call, 0).sql + "," +
                       dateArgument(call, 1).sql + "," + std::to_string(call.position) + ")",
                .type = Type::dateTime(),
                .position = call.position};
    return {.sql = "ts_datediff(" + code(*part) + "," + dateArgument(call, 0).sql + "," +
                   dateArgument(call, 1).sql + ")",
            .type = Type::integer(),
            .position = call.position};
}

} // namespace tellurix::embedded
