#include "database/embedded/values/types.h"

#include "database/embedded/values/names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace tellurix::embedded {

namespace {

constexpr std::int32_t longestText = 4000;

/// T-SQL gives up decimals, but not below six, when a result would be too wide.
Type withinDigits(int precision, int scale) {
    if (precision > Type::maxPrecision) {
        const int whole = precision - scale;
        scale = std::max(Type::maxPrecision - whole, std::min(scale, 6));
        precision = Type::maxPrecision;
    }
    return Type::decimal(precision, scale);
}

int digitsOf(TypeKind kind) {
    switch (kind) {
    case TypeKind::bit:
        return 1;
    case TypeKind::tinyInt:
        return 3;
    case TypeKind::smallInt:
        return 5;
    case TypeKind::integer:
        return 10;
    default:
        return Type::maxPrecision;
    }
}

std::optional<Type> textType(std::span<const std::int32_t> arguments, std::int32_t defaultLength,
                             bool padded) {
    if (arguments.size() > 1) return std::nullopt;
    std::int32_t length = arguments.empty() ? defaultLength : arguments[0];
    if (length != Type::unlimited && (length < 1 || length > 2 * longestText)) return std::nullopt;
    if (padded && length == Type::unlimited) return std::nullopt;
    Type type = Type::text(length);
    type.padded = padded;
    return type;
}

std::optional<Type> decimalType(std::span<const std::int32_t> arguments) {
    const std::int32_t precision = arguments.empty() ? Type::maxPrecision : arguments[0];
    const std::int32_t scale = arguments.size() < 2 ? 0 : arguments[1];
    if (arguments.size() > 2 || precision < 1 || precision > Type::maxPrecision || scale < 0 ||
        scale > precision)
        return std::nullopt;
    return Type::decimal(precision, scale);
}

} // namespace

Type Type::decimal(int precision, int scale) {
    return {.kind = TypeKind::decimal,
            .precision = static_cast<std::uint8_t>(precision),
            .scale = static_cast<std::uint8_t>(scale)};
}

std::optional<Type> declaredType(std::string_view name, std::span<const std::int32_t> arguments,
                                 std::int32_t defaultLength) {
    if (name == "nvarchar" || name == "varchar") return textType(arguments, defaultLength, false);
    if (name == "nchar" || name == "char") return textType(arguments, defaultLength, true);
    if (name == "decimal" || name == "numeric" || name == "dec") return decimalType(arguments);
    if (name == "float" && arguments.size() <= 1) return Type::of(TypeKind::floating);
    if (!arguments.empty()) return std::nullopt;
    if (name == "int" || name == "integer") return Type::integer();
    if (name == "bit") return Type::of(TypeKind::bit);
    if (name == "tinyint") return Type::of(TypeKind::tinyInt);
    if (name == "smallint") return Type::of(TypeKind::smallInt);
    if (name == "bigint") return Type::of(TypeKind::bigInt);
    if (name == "real") return Type::of(TypeKind::floating);
    if (name == "datetime") return Type::dateTime();
    if (name == "date") {
        Type type = Type::dateTime();
        type.dayOnly = true;
        return type;
    }
    if (name == "money") {
        Type type = Type::decimal(Type::maxPrecision, 4);
        type.money = true;
        return type;
    }
    return std::nullopt;
}

std::optional<Type> declaredType(std::string_view declaration) {
    const std::size_t open = declaration.find('(');
    const std::string name = foldName(declaration.substr(0, open));
    std::array<std::int32_t, 2> arguments{};
    std::size_t count = 0;
    if (open != std::string_view::npos) {
        const char* at = declaration.data() + open + 1;
        const char* const end = declaration.data() + declaration.size();
        while (at < end && count < arguments.size()) {
            const auto [next, error] = std::from_chars(at, end, arguments[count]);
            if (error != std::errc{}) return std::nullopt;
            ++count;
            at = next;
            while (at < end && (*at == ',' || *at == ' ' || *at == ')'))
                ++at;
        }
    }
    return declaredType(name, std::span(arguments.data(), count), Type::unlimited);
}

std::string declarationOf(std::string_view name, const Type& type) {
    std::string declaration(name);
    if (type.isText() && type.length != Type::unlimited)
        declaration += "(" + std::to_string(type.length) + ")";
    else if (type.isDecimal() && !type.money)
        declaration += "(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    return declaration;
}

std::string describe(const Type& type) {
    switch (type.kind) {
    case TypeKind::null:
        return "NULL";
    case TypeKind::text:
        return declarationOf(type.padded ? "nchar" : "nvarchar", type);
    case TypeKind::bit:
        return "bit";
    case TypeKind::tinyInt:
        return "tinyint";
    case TypeKind::smallInt:
        return "smallint";
    case TypeKind::integer:
        return "int";
    case TypeKind::bigInt:
        return "bigint";
    case TypeKind::decimal:
        return type.money ? "money" : declarationOf("decimal", type);
    case TypeKind::floating:
        return "float";
    case TypeKind::dateTime:
        return type.dayOnly ? "date" : "datetime";
    case TypeKind::condition:
        return "condition";
    }
    return {};
}

base::FieldType fieldTypeOf(const Type& type) {
    switch (type.kind) {
    case TypeKind::text:
        return base::FieldType::text;
    case TypeKind::bit:
        return base::FieldType::flag;
    case TypeKind::tinyInt:
        return base::FieldType::tinyInteger;
    case TypeKind::smallInt:
        return base::FieldType::smallInteger;
    case TypeKind::bigInt:
        return base::FieldType::bigInteger;
    case TypeKind::decimal:
        return base::FieldType::decimal;
    case TypeKind::floating:
        return base::FieldType::floating;
    case TypeKind::dateTime:
        return base::FieldType::dateTime;
    // A column that is a bare NULL is an int, as on the server.
    default:
        return base::FieldType::integer;
    }
}

Type asDecimal(const Type& exact) {
    return exact.isDecimal() ? exact : Type::decimal(digitsOf(exact.kind), 0);
}

std::optional<Type> commonType(const Type& left, const Type& right) {
    if (left.kind == TypeKind::condition || right.kind == TypeKind::condition) return std::nullopt;
    if (left.kind == TypeKind::null || left == right) return right;
    if (right.kind == TypeKind::null) return left;
    if (left.isText() && right.isText()) {
        const bool endless = left.length == Type::unlimited || right.length == Type::unlimited;
        return Type::text(endless ? Type::unlimited : std::max(left.length, right.length));
    }
    if (left.kind == TypeKind::dateTime || right.kind == TypeKind::dateTime) {
        if (left.isNumber() || right.isNumber()) return std::nullopt;
        return Type::dateTime();
    }
    if (left.kind == TypeKind::floating || right.kind == TypeKind::floating)
        return Type::of(TypeKind::floating);
    // A text that meets a decimal becomes a decimal of that very type.
    if (left.isText() || right.isText()) return left.isText() ? right : left;
    if (left.isDecimal() || right.isDecimal()) {
        const Type a = asDecimal(left);
        const Type b = asDecimal(right);
        const int scale = std::max(a.scale, b.scale);
        const int whole = std::max(a.precision - a.scale, b.precision - b.scale);
        return Type::decimal(std::min(whole + scale, Type::maxPrecision), scale);
    }
    return Type::of(std::max(left.kind, right.kind));
}

Type sumType(const Type& left, const Type& right) {
    const int scale = std::max(left.scale, right.scale);
    const int whole = std::max(left.precision - left.scale, right.precision - right.scale);
    // A sum keeps all its decimals; a value that needs more digits is an overflow.
    return Type::decimal(std::min(whole + scale + 1, Type::maxPrecision), scale);
}

Type productType(const Type& left, const Type& right) {
    return withinDigits(left.precision + right.precision + 1, left.scale + right.scale);
}

Type quotientType(const Type& left, const Type& right) {
    const int scale = std::max(6, left.scale + right.precision + 1);
    return withinDigits(left.precision - left.scale + right.scale + scale, scale);
}

std::int64_t smallestOf(TypeKind kind) {
    switch (kind) {
    case TypeKind::bit:
    case TypeKind::tinyInt:
        return 0;
    case TypeKind::smallInt:
        return std::numeric_limits<std::int16_t>::min();
    case TypeKind::integer:
        return std::numeric_limits<std::int32_t>::min();
    default:
        return std::numeric_limits<std::int64_t>::min();
    }
}

std::int64_t largestOf(TypeKind kind) {
    switch (kind) {
    case TypeKind::bit:
        return 1;
    case TypeKind::tinyInt:
        return std::numeric_limits<std::uint8_t>::max();
    case TypeKind::smallInt:
        return std::numeric_limits<std::int16_t>::max();
    case TypeKind::integer:
        return std::numeric_limits<std::int32_t>::max();
    default:
        return std::numeric_limits<std::int64_t>::max();
    }
}

} // namespace tellurix::embedded
