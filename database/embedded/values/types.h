#pragma once

#include "module/base/database.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// What kind of value an expression has, in the order of precedence in which T-SQL converts the
/// lower of two kinds into the higher one. `null` is a bare NULL, which takes any type;
/// `condition` is what stands after WHERE, which is no value.
enum class TypeKind : std::uint8_t {
    null,
    text,
    bit,
    tinyInt,
    smallInt,
    integer,
    bigInt,
    decimal,
    floating,
    dateTime,
    condition
};

/// The static type of a column or an expression, and with it the way SQLite holds its values:
///
///     bit, integers   INTEGER
///     decimal         INTEGER, the value times 10^scale
///     floating        REAL
///     text            TEXT
///     dateTime        INTEGER, milliseconds since 1970-01-01 00:00 local time
struct Type {
    static constexpr std::int32_t unlimited = -1;
    static constexpr int maxPrecision = 18;

    TypeKind kind = TypeKind::null;
    std::uint8_t precision = 0; ///< decimal: all digits
    std::uint8_t scale = 0;     ///< decimal: digits after the point
    bool padded = false;        ///< text: filled up with blanks to its length (nchar)
    bool money = false;         ///< decimal: written with two decimals when it becomes a text
    bool dayOnly = false;       ///< dateTime: without a time of day
    std::int32_t length = 0;    ///< text: most UTF-16 units, or `unlimited`

    static Type of(TypeKind kind) { return {.kind = kind}; }
    static Type decimal(int precision, int scale);
    static Type text(std::int32_t length) { return {.kind = TypeKind::text, .length = length}; }
    static Type integer() { return of(TypeKind::integer); }
    static Type dateTime() { return of(TypeKind::dateTime); }
    static Type condition() { return of(TypeKind::condition); }

    bool isText() const { return kind == TypeKind::text; }
    bool isIntegral() const { return kind >= TypeKind::bit && kind <= TypeKind::bigInt; }
    bool isDecimal() const { return kind == TypeKind::decimal; }
    bool isExact() const { return isIntegral() || isDecimal(); }
    bool isNumber() const { return isExact() || kind == TypeKind::floating; }

    friend bool operator==(const Type&, const Type&) = default;
};

/// The type that a declaration such as "decimal(12,2)" or "nvarchar(50)" means.
/// @param name in lower case; @param arguments the numbers in parentheses, -1 for "max"
/// @param defaultLength of a text type without a length: 1 in a column, 30 in CAST
/// @return nothing when there is no such type here
std::optional<Type> declaredType(std::string_view name, std::span<const std::int32_t> arguments,
                                 std::int32_t defaultLength);

/// The same from a text, as SQLite's catalogue keeps it. Text types without a length are unlimited.
std::optional<Type> declaredType(std::string_view declaration);

/// The declaration that the catalogue keeps, so that `declaredType` reads the same type from it.
std::string declarationOf(std::string_view name, const Type& type);

/// How the type is called in an error message.
std::string describe(const Type& type);

base::FieldType fieldTypeOf(const Type& type);
/// As `base::Recordset::textWidth` tells it.
inline int textWidthOf(const Type& type) {
    return type.isText() && type.length != Type::unlimited ? type.length : 0;
}

/// The decimal type that holds every value of an exact type.
Type asDecimal(const Type& exact);

/// The type of both sides when two values meet: compared, branches of CASE, columns of UNION.
/// @return nothing when the one cannot become the other
std::optional<Type> commonType(const Type& left, const Type& right);

/// The type of `left op right` for two decimals (see `asDecimal`).
///
/// T-SQL's rules for precision and scale, held within 18 digits: where the digits do not
/// suffice, decimals are given up first, down to six.
Type sumType(const Type& left, const Type& right);
Type productType(const Type& left, const Type& right);
Type quotientType(const Type& left, const Type& right);

/// The bounds of an integer kind.
std::int64_t smallestOf(TypeKind kind);
std::int64_t largestOf(TypeKind kind);

} // namespace tellurix::embedded
