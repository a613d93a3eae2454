#include "database/embedded/translation/Fragment.h"
#include "database/embedded/values/Collation.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/decimal_units.h"
#include "database/embedded/values/names.h"
#include "database/embedded/values/packed.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

using Purpose = Destination::Purpose;

constexpr std::int32_t longestFloatText = 14;

[[noreturn]] void failTypes(const Fragment& value, const Type& target, const Destination& destination) {
    std::string message = "A value of type " + describe(value.type) + " cannot become " + describe(target);
    if (!destination.column.empty()) message += " for the column " + std::string(destination.column);
    failConversion(message, value.position);
}

/// `function(value, packed type, position[, column])`
Fragment call(const char* function, const Fragment& value, const Type& target, std::int64_t packed,
              const Destination& destination) {
    std::string sql = function;
    sql += '(';
    sql += value.sql;
    sql += ',';
    sql += std::to_string(packed);
    sql += ',';
    sql += positionArgument(value.position);
    if (!destination.column.empty()) {
        sql += ',';
        sql += quoteText(destination.column);
    }
    sql += ')';
    return {.sql = std::move(sql), .type = target, .position = value.position};
}

Fragment wrapped(const char* before, const Fragment& value, std::string_view after, const Type& target) {
    return {.sql = before + value.sql + std::string(after), .type = target, .position = value.position};
}

/// A number in text form never gets cut.
Fragment fitNumberText(Fragment text, std::int32_t longest, const Type& target,
                       const Destination& destination) {
    if (target.length != Type::unlimited && target.length < longest)
        text = call("ts_need", text, target, packType(target), destination);
    if (target.padded) text = call("ts_fit", text, target, packType(target), destination);
    text.type = target;
    return text;
}

Fragment textToText(Fragment value, const Type& target, const Destination& destination) {
    const bool mayBeLonger = target.length != Type::unlimited &&
                             (value.type.length == Type::unlimited || value.type.length > target.length);
    if (destination.purpose != Purpose::meeting && (mayBeLonger || (target.padded && value.type != target))) {
        if (destination.purpose == Purpose::column)
            return call("ts_fit", value, target, packType(target), destination);
        return {.sql = "ts_cut(" + value.sql + "," + std::to_string(packType(target)) + ")",
                .type = target,
                .position = value.position};
    }
    value.type = target;
    return value;
}

Fragment toText(Fragment value, const Type& target, const Destination& destination) {
    switch (value.type.kind) {
    case TypeKind::text:
        return textToText(std::move(value), target, destination);
    case TypeKind::decimal: {
        if (value.type.money) value = convert(std::move(value), Type::decimal(Type::maxPrecision, 2));
        const std::int32_t longest = value.type.precision + 3;
        const std::string scale = std::to_string(value.type.scale);
        return fitNumberText(wrapped("ts_dec_text(", value, "," + scale + ")", target), longest, target,
                             destination);
    }
    case TypeKind::floating:
        return fitNumberText(wrapped("ts_float_text(", value, ")", target), longestFloatText, target,
                             destination);
    case TypeKind::dateTime: {
        const std::size_t position = value.position;
        Fragment text{.sql = "ts_date_text(" + value.sql + "," +
                             std::to_string(std::max(destination.style, 0)) + "," +
                             positionArgument(position) + ")",
                      .type = Type::text(Type::unlimited),
                      .position = position};
        return textToText(std::move(text), target, destination);
    }
    default: {
        const auto longest = static_cast<std::int32_t>(std::to_string(smallestOf(value.type.kind)).size());
        return fitNumberText(wrapped("CAST(", value, " AS TEXT)", target), std::max<std::int32_t>(longest, 3),
                             target, destination);
    }
    }
}

Fragment toBit(Fragment value, const Type& target, const Destination& destination) {
    if (value.type.isText()) return call("ts_text_bit", value, target, packType(target), destination);
    if (!value.type.isNumber()) failTypes(value, target, destination);
    if (value.literal == Fragment::Literal::exact)
        return exactFragment(value.units != 0 ? 1 : 0, target, value.position);
    if (value.type.kind == TypeKind::bit) return value;
    return wrapped("(", value, "<>0)", target);
}

Fragment toInteger(Fragment value, const Type& target, const Destination& destination) {
    switch (value.type.kind) {
    case TypeKind::text:
        return call("ts_text_int", value, target, packType(target), destination);
    case TypeKind::decimal:
        return call("ts_dec_int", value, target, packType(target, value.type.scale), destination);
    case TypeKind::floating:
        return call("ts_float_int", value, target, packType(target), destination);
    case TypeKind::dateTime:
        failTypes(value, target, destination);
    default:
        break;
    }
    const bool inRange = value.literal == Fragment::Literal::exact
                             ? value.units >= smallestOf(target.kind) && value.units <= largestOf(target.kind)
                             : smallestOf(value.type.kind) >= smallestOf(target.kind) &&
                                   largestOf(value.type.kind) <= largestOf(target.kind);
    if (!inRange) return call("ts_int_int", value, target, packType(target), destination);
    value.type = target;
    return value;
}

Fragment toDecimal(Fragment value, const Type& target, const Destination& destination) {
    switch (value.type.kind) {
    case TypeKind::text:
        return call("ts_text_dec", value, target, packType(target), destination);
    case TypeKind::floating:
        return call("ts_float_dec", value, target, packType(target), destination);
    case TypeKind::dateTime:
        failTypes(value, target, destination);
    default:
        break;
    }
    const Type source = decimalTypeOf(value);
    if (value.literal == Fragment::Literal::exact) {
        const auto units = rescaled(value.units, source.scale, target.scale);
        const std::int64_t limit = powerOfTen(target.precision);
        if (units && *units<limit&& * units> - limit) return exactFragment(*units, target, value.position);
    }
    const int more = target.scale - source.scale;
    const bool wideEnough = target.precision - target.scale >= source.precision - source.scale;
    if (more >= 0 && wideEnough) {
        if (more > 0) return wrapped("(", value, "*" + std::to_string(powerOfTen(more)) + ")", target);
        value.type = target;
        return value;
    }
    return call("ts_dec_dec", value, target, packType(target, source.scale), destination);
}

Fragment toFloat(Fragment value, const Type& target, const Destination& destination) {
    switch (value.type.kind) {
    case TypeKind::text:
        return call("ts_text_float", value, target, packType(target), destination);
    case TypeKind::floating:
        return value;
    case TypeKind::dateTime:
        failTypes(value, target, destination);
    case TypeKind::decimal:
        if (value.type.scale > 0)
            return wrapped("(", value, "/" + std::to_string(powerOfTen(value.type.scale)) + ".0)", target);
        [[fallthrough]];
    default:
        return wrapped("CAST(", value, " AS REAL)", target);
    }
}

Fragment toDate(Fragment value, const Type& target, const Destination& destination) {
    if (value.type.isText() && destination.style >= 0)
        return {.sql = "ts_styled_date(" + value.sql + "," + std::to_string(packType(target)) + "," +
                       positionArgument(value.position) + "," + std::to_string(destination.style) + ")",
                .type = target,
                .position = value.position};
    if (value.type.isText()) return call("ts_text_date", value, target, packType(target), destination);
    if (value.type.kind != TypeKind::dateTime) failTypes(value, target, destination);
    if (target.dayOnly && !value.type.dayOnly) return wrapped("ts_day(", value, ")", target);
    value.type = target;
    return value;
}

/// Compares two exact numbers as integers of one scale. A product that leaves 64 bits becomes a
/// REAL, which still compares rightly with a number inside them.
void alignScales(Fragment& left, Fragment& right) {
    const auto shorten = [](Fragment& value, int scale) {
        while (value.literal == Fragment::Literal::exact && value.type.scale > scale && value.units % 10 == 0)
            value = exactFragment(value.units / 10, Type::decimal(Type::maxPrecision, value.type.scale - 1),
                                  value.position);
    };
    shorten(left, right.type.scale);
    shorten(right, left.type.scale);
    const auto lengthen = [](Fragment& value, int scale) {
        const int more = scale - value.type.scale;
        if (more <= 0) return;
        const Type type = Type::decimal(Type::maxPrecision, scale);
        if (value.literal == Fragment::Literal::exact)
            if (const auto units = rescaled(value.units, value.type.scale, scale)) {
                value = exactFragment(*units, type, value.position);
                return;
            }
        value.sql = "(" + value.sql + "*" + std::to_string(powerOfTen(more)) + ")";
        value.type = type;
        value.literal = Fragment::Literal::none;
    };
    const int scale = std::max(left.type.scale, right.type.scale);
    lengthen(left, scale);
    lengthen(right, scale);
}

} // namespace

Fragment nullFragment(std::size_t position) {
    return {.sql = "NULL", .type = Type::of(TypeKind::null), .position = position};
}

Fragment exactFragment(std::int64_t units, const Type& type, std::size_t position) {
    return {.sql = std::to_string(units),
            .type = type,
            .position = position,
            .literal = Fragment::Literal::exact,
            .units = units};
}

Fragment textFragment(std::string_view text, std::size_t position) {
    const auto length = static_cast<std::int32_t>(std::clamp<std::size_t>(text.size(), 1, 4000));
    return {.sql = quoteText(text),
            .type = text.size() > 4000 ? Type::text(Type::unlimited) : Type::text(length),
            .position = position,
            .literal = Fragment::Literal::text,
            .text = text};
}

std::string positionArgument(std::size_t position) {
    return position == base::DatabaseError::noPosition ? "-1" : std::to_string(position);
}

Type decimalTypeOf(const Fragment& exact) {
    if (exact.literal != Fragment::Literal::exact || exact.type.isDecimal()) return asDecimal(exact.type);
    int digits = 1;
    for (std::int64_t rest = exact.units / 10; rest != 0; rest /= 10)
        ++digits;
    return Type::decimal(std::min(digits, Type::maxPrecision), 0);
}

Fragment convert(Fragment value, const Type& target, const Destination& destination) {
    if (value.isNull()) {
        value.type = target;
        return value;
    }
    if (target.kind == TypeKind::null || value.type == target) return value;
    switch (target.kind) {
    case TypeKind::text:
        return toText(std::move(value), target, destination);
    case TypeKind::bit:
        return toBit(std::move(value), target, destination);
    case TypeKind::tinyInt:
    case TypeKind::smallInt:
    case TypeKind::integer:
    case TypeKind::bigInt:
        return toInteger(std::move(value), target, destination);
    case TypeKind::decimal:
        return toDecimal(std::move(value), target, destination);
    case TypeKind::floating:
        return toFloat(std::move(value), target, destination);
    case TypeKind::dateTime:
        return toDate(std::move(value), target, destination);
    default:
        failTypes(value, target, destination);
    }
}

void collate(Fragment& value) {
    if (value.collated || !value.type.isText()) return;
    value.sql += " COLLATE ";
    value.sql += Collation::name;
    value.collated = true;
}

void makeComparable(Fragment& left, Fragment& right) {
    if (left.isNull() || right.isNull()) return;
    const auto common = commonType(left.type, right.type);
    if (!common)
        failConversion("A value of type " + describe(left.type) + " cannot be compared with one of type " +
                           describe(right.type),
                       right.position);
    if (common->isText()) {
        if (!left.collated && !right.collated) collate(left);
        return;
    }
    if (left.type.isText())
        left = convert(std::move(left), right.type);
    else if (right.type.isText())
        right = convert(std::move(right), left.type);
    if (left.type.isExact() && right.type.isExact())
        alignScales(left, right);
    else if (left.type.isNumber() && right.type.isNumber()) {
        // SQLite compares integers with floating-point numbers exactly; a scaled one is no integer.
        if (left.type.isDecimal()) left = convert(std::move(left), *common);
        if (right.type.isDecimal()) right = convert(std::move(right), *common);
    }
}

} // namespace tellurix::embedded
