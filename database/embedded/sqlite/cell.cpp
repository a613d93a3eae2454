#include "database/embedded/sqlite/cell.h"

#include "database/embedded/values/Fault.h"
#include "database/embedded/values/date_text.h"
#include "database/embedded/values/decimal_units.h"
#include "database/embedded/values/utf8.h"

#include <algorithm>
#include <cmath>

namespace tellurix::embedded {

namespace {

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

[[noreturn]] void failRange(const Type& type) {
    failConversion("A result does not fit " + describe(type));
}

} // namespace

void bindCell(SqliteStatement& statement, int parameter, const Cell& cell) {
    std::visit(Overloaded{[&](std::monostate) { statement.bindNull(parameter); },
                          [&](const std::string& text) { statement.bind(parameter, std::string_view(text)); },
                          [&](auto number) { statement.bind(parameter, number); }},
               cell);
}

Cell cellAt(const SqliteStatement& statement, int column) {
    switch (statement.columnType(column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return statement.integer(column);
    case SQLITE_FLOAT:
        return statement.floating(column);
    default:
        return std::string(statement.text(column));
    }
}

base::Value valueAt(const SqliteStatement& statement, int column, const Type& type) {
    const int storage = statement.columnType(column);
    if (storage == SQLITE_NULL) return {};
    if (type.isText()) return std::string(statement.text(column));
    if (type.kind == TypeKind::floating) {
        const double number = statement.floating(column);
        if (!std::isfinite(number)) failRange(type);
        return number;
    }
    // SQLite turns an integer that overflows into a floating-point number.
    if (storage != SQLITE_INTEGER) failRange(type);
    const std::int64_t number = statement.integer(column);
    switch (type.kind) {
    case TypeKind::bit:
        return number != 0;
    case TypeKind::dateTime:
        return fromMilliseconds(number);
    case TypeKind::decimal:
        if (number > largestUnits || number < -largestUnits) failRange(type);
        return base::Decimal(number, type.scale);
    default:
        return number;
    }
}

TypedCell cellOf(const base::Value& value) {
    return std::visit(
        Overloaded{[](base::Null) { return TypedCell{}; },
                   [](bool flag) {
                       return TypedCell{std::int64_t{flag}, Type::of(TypeKind::bit)};
                   },
                   [](std::int64_t number) {
                       return TypedCell{number, Type::of(TypeKind::bigInt)};
                   },
                   [](const base::Decimal& number) {
                       return TypedCell{number.units(), Type::decimal(Type::maxPrecision, number.scale())};
                   },
                   [](double number) {
                       return TypedCell{number, Type::of(TypeKind::floating)};
                   },
                   [](const std::string& text) {
                       const auto length =
                           static_cast<std::int32_t>(std::max<std::size_t>(1, utf16Length(text)));
                       return TypedCell{text, Type::text(length)};
                   },
                   [](base::DateTime moment) {
                       return TypedCell{toMilliseconds(moment), Type::dateTime()};
                   }},
        value);
}

} // namespace tellurix::embedded
