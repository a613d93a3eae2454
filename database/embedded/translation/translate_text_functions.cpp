#include "database/embedded/translation/Translator.h"
#include "database/embedded/translation/call_arguments.h"

namespace tellurix::embedded {

Fragment Translator::textArgument(const Expression& call, std::size_t index) {
    return convert(value(*call.operands[index]), Type::text(Type::unlimited));
}

Translator::TextArgument Translator::changedArgument(const Expression& call) {
    Fragment source = value(*call.operands[0]);
    Type type = source.type.isText() ? source.type : Type::text(Type::unlimited);
    type.padded = false;
    return {convert(std::move(source), Type::text(Type::unlimited)).sql, type};
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

Fragment Translator::charIndex(const Expression& call) {
    requireArguments(call, 2, 3);
    const std::string start = call.operands.size() > 2 ? integerArgument(call, 2).sql : "1";
    return {.sql = "ts_charindex(" + textArgument(call, 0).sql + "," + textArgument(call, 1).sql + "," +
                   start + ")",
            .type = Type::integer(),
            .position = call.position};
}

Fragment Translator::patIndex(const Expression& call) {
    requireArguments(call, 2, 2);
    return {.sql = "ts_patindex(" + textArgument(call, 0).sql + "," + textArgument(call, 1).sql + ")",
            .type = Type::integer(),
            .position = call.position};
}

Fragment Translator::replace(const Expression& call) {
    requireArguments(call, 3, 3);
    return {.sql = "ts_replace(" + textArgument(call, 0).sql + "," + textArgument(call, 1).sql + "," +
                   textArgument(call, 2).sql + ")",
            .type = Type::text(Type::unlimited),
            .position = call.position};
}

Fragment Translator::isNumeric(const Expression& call) {
    requireArguments(call, 1, 1);
    const Fragment operand = value(*call.operands[0]);
    Fragment answer{.sql = {}, .type = Type::integer(), .position = call.position};
    if (operand.type.isText())
        answer.sql = "ifnull(ts_isnumeric(" + operand.sql + "),0)";
    else
        answer.sql = operand.type.isNumber() ? "(" + operand.sql + " IS NOT NULL)" : "0";
    return answer;
}

Fragment Translator::isDate(const Expression& call) {
    requireArguments(call, 1, 1);
    const Fragment operand = value(*call.operands[0]);
    Fragment answer{
        .sql = "(" + operand.sql + " IS NOT NULL)", .type = Type::integer(), .position = call.position};
    if (operand.type.kind != TypeKind::dateTime)
        answer.sql = "ifnull(ts_isdate(" + convert(operand, Type::text(Type::unlimited)).sql + "),0)";
    return answer;
}

} // namespace tellurix::embedded
