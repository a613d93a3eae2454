#include "database/embedded/translation/Translator.h"
#include "database/embedded/translation/call_arguments.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/date_parts.h"
#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

std::string code(DatePart part) {
    return std::to_string(static_cast<int>(part));
}

} // namespace

Fragment Translator::function(const Expression& call) {
    using Function = Fragment (Translator::*)(const Expression&);
    static const NameMap<Function> functions{
        {"isnull", &Translator::isNullFunction},
        {"coalesce", &Translator::coalesce},
        {"nullif", &Translator::nullIf},
        {"round", &Translator::round},
        {"abs", &Translator::absolute},
        {"left", &Translator::textEnd},
        {"right", &Translator::textEnd},
        {"substring", &Translator::substring},
        {"upper", &Translator::changedText},
        {"lower", &Translator::changedText},
        {"ltrim", &Translator::changedText},
        {"rtrim", &Translator::changedText},
        {"len", &Translator::textLength},
        {"year", &Translator::yearMonthDay},
        {"month", &Translator::yearMonthDay},
        {"day", &Translator::yearMonthDay},
        {"getdate", &Translator::now},
        {"ident_current", &Translator::identityOf},
        {"iif", &Translator::iif},
        {"floor", &Translator::wholeNumber},
        {"ceiling", &Translator::wholeNumber},
        {"charindex", &Translator::charIndex},
        {"patindex", &Translator::patIndex},
        {"replace", &Translator::replace},
        {"isnumeric", &Translator::isNumeric},
        {"isdate", &Translator::isDate},
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

Fragment Translator::iif(const Expression& call) {
    requireArguments(call, 3, 3);
    std::vector<Fragment> conditions{condition(call.operands[0], "IIF")};
    std::vector<Fragment> results{value(*call.operands[1]), value(*call.operands[2])};
    return caseText("CASE", std::move(conditions), std::move(results), call.position);
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
    requireArguments(call, 2, 3);
    Fragment number = value(*call.operands[0]);
    const std::string decimals = integerArgument(call, 1).sql;
    // Anything but 0 cuts instead of rounding.
    const std::string cuts = call.operands.size() > 2 ? integerArgument(call, 2).sql : "0";
    if (number.isNull()) return number;
    if (number.type.isText()) number = convert(std::move(number), Type::of(TypeKind::floating));
    if (!number.type.isNumber())
        failConversion("ROUND takes a number, not " + describe(number.type), call.position);
    Type type = number.type;
    if (type.kind == TypeKind::floating)
        return {.sql = "ts_fround(" + number.sql + "," + decimals + "," + cuts + ")",
                .type = type,
                .position = call.position};
    // Rounding up can need one digit more before the point.
    if (type.isDecimal() && !type.money)
        type.precision = static_cast<std::uint8_t>(std::min(type.precision + 1, Type::maxPrecision));
    return {.sql = "ts_round(" + number.sql + "," + std::to_string(type.scale) + "," + decimals + "," + cuts +
                   "," + std::to_string(call.position) + ")",
            .type = type,
            .position = call.position};
}

/// FLOOR and CEILING.
Fragment Translator::wholeNumber(const Expression& call) {
    requireArguments(call, 1, 1);
    Fragment number = value(*call.operands[0]);
    if (number.isNull()) return number;
    if (number.type.isText()) number = convert(std::move(number), Type::of(TypeKind::floating));
    if (!number.type.isNumber())
        failConversion(std::string(call.name.written) + " takes a number, not " + describe(number.type),
                       call.position);
    if (number.type.isIntegral()) return number;
    const bool up = call.name.folded == "ceiling";
    Fragment whole{.sql = {}, .type = number.type, .position = call.position};
    if (number.type.kind == TypeKind::floating) {
        whole.sql = (up ? "ts_fceiling(" : "ts_ffloor(") + number.sql + ")";
        return whole;
    }
    if (!number.type.money) whole.type.scale = 0;
    whole.sql = (up ? "ts_ceiling(" : "ts_floor(") + number.sql + "," + std::to_string(number.type.scale) +
                "," + std::to_string(whole.type.scale) + ")";
    return whole;
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

Fragment Translator::integerArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::integer());
}

Fragment Translator::dateArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::dateTime());
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
        const bool isDate = operand.type.kind == TypeKind::dateTime;
        const bool toDate = call.type.kind == TypeKind::dateTime;
        const bool styled = operand.type.isText() != call.type.isText() && !operand.isNull();
        // Between two texts, two dates or two numbers a style has no meaning.
        const bool supported = !styled || (isDate || toDate ? isDateStyle(number) : number == 0);
        if (!known || !supported)
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
    const bool names = call.name.folded == "datename";
    const bool reads = names || call.name.folded == "datepart";
    const bool adds = call.name.folded == "dateadd";
    requireArguments(call, reads ? 1 : 2, reads ? 1 : 2);
    if (!part || !(reads ? canRead(*part) : adds ? canAdd(*part) : canCount(*part)))
        failSyntax(std::string(call.name.written) + " of " + std::string(call.part.written) +
                       " is not supported",
                   call.part.position);
    constexpr std::int32_t longestName = 30;
    if (names)
        return {.sql = "ts_datename(" + code(*part) + "," + dateArgument(call, 0).sql + ")",
                .type = Type::text(longestName),
                .position = call.position};
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
