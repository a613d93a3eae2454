#include "database/odbc/values.h"

#include "database/servers/server_values.h"
#include "module/base/text.h"

#include <algorithm>
#include <cstdlib>

namespace tellurix::odbc {

namespace {

using base::FieldType;

/// Types that the standard's header does not know, by the numbers that drivers of T-SQL servers give them.
constexpr SQLSMALLINT timeWithFractions = -154;
constexpr SQLSMALLINT momentWithZone = -155;

/// Texts without a limit have the largest size that a text can have, or none, or that of a long text.
constexpr SQLULEN longestLimited = 8000;

constexpr std::size_t mostDigits = 18;

[[noreturn]] void failConversion(const std::string& text, std::string_view statement) {
    throw base::DatabaseError(base::DatabaseErrorCategory::conversion,
                              "The number " + text + " has more than 18 digits before the point, or is none",
                              std::string(statement));
}

SQL_TIMESTAMP_STRUCT timestampFrom(base::DateTime moment) {
    using namespace std::chrono;
    const base::Date day = base::dayOf(moment);
    const hh_mm_ss time{moment - floor<days>(moment)};
    return {.year = static_cast<SQLSMALLINT>(static_cast<int>(day.year())),
            .month = static_cast<SQLUSMALLINT>(static_cast<unsigned>(day.month())),
            .day = static_cast<SQLUSMALLINT>(static_cast<unsigned>(day.day())),
            .hour = static_cast<SQLUSMALLINT>(time.hours().count()),
            .minute = static_cast<SQLUSMALLINT>(time.minutes().count()),
            .second = static_cast<SQLUSMALLINT>(time.seconds().count()),
            .fraction = static_cast<SQLUINTEGER>(nanoseconds{time.subseconds()}.count())};
}

} // namespace

FieldType Column::type() const {
    switch (sqlType) {
    case SQL_BIT:
        return FieldType::flag;
    case SQL_TINYINT:
        return FieldType::tinyInteger;
    case SQL_SMALLINT:
        return FieldType::smallInteger;
    case SQL_INTEGER:
        return FieldType::integer;
    case SQL_BIGINT:
        return FieldType::bigInteger;
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        return FieldType::decimal;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return FieldType::floating;
    case SQL_DATE:
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
    case SQL_TYPE_TIMESTAMP:
        return FieldType::dateTime;
    default:
        return FieldType::text;
    }
}

int Column::textWidth() const {
    const bool isText =
        type() == FieldType::text && sqlType != timeWithFractions && sqlType != momentWithZone;
    if (!isText || sqlType == SQL_LONGVARCHAR || sqlType == SQL_WLONGVARCHAR || size > longestLimited)
        return 0;
    return static_cast<int>(size);
}

std::string textOf(const base::Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string{} : *text;
}

base::Decimal decimalFrom(const std::string& text, std::string_view statement) {
    if (const auto number = base::Decimal::parse(text)) return *number;
    const std::size_t start = text.starts_with('-') ? 1 : 0;
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t whole = point - std::min(text.find_first_not_of('0', start), point);
    if (!base::isPlainNumber(text) || whole > mostDigits) failConversion(text, statement);
    const std::size_t kept = std::min(mostDigits - whole, text.size() - point - 1);
    const auto cut = base::Decimal::parse(text.substr(0, point + 1 + kept));
    if (!cut) failConversion(text, statement);
    if (point + 1 + kept == text.size() || text[point + 1 + kept] < '5') return *cut;
    const std::int64_t away = cut->units() + (start == 1 ? -1 : 1);
    if (std::abs(away) <= base::Decimal::maxUnits) return base::Decimal(away, cut->scale());
    if (cut->scale() == 0) failConversion(text, statement);
    return cut->rounded(cut->scale() - 1);
}

base::DateTime momentFrom(const SQL_TIMESTAMP_STRUCT& moment) {
    using namespace std::chrono;
    constexpr SQLUINTEGER halfMillisecond = 500'000;
    constexpr SQLUINTEGER wholeMillisecond = 1'000'000;
    return base::startOf(year{moment.year} / moment.month / moment.day) + hours{moment.hour} +
           minutes{moment.minute} + seconds{moment.second} +
           milliseconds{(moment.fraction + halfMillisecond) / wholeMillisecond};
}

Parameter::Parameter(const base::Value& value, const Column& column) : sqlType_(column.sqlType) {
    const FieldType type = column.type();
    if (std::holds_alternative<base::Null>(value)) {
        length_ = SQL_NULL_DATA;
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        value_ = static_cast<SQLCHAR>(*flag ? 1 : 0);
    } else if (const auto* number = std::get_if<std::int64_t>(&value)) {
        if (type == FieldType::flag)
            value_ = static_cast<SQLCHAR>(*number != 0 ? 1 : 0);
        else
            value_ = static_cast<SQLBIGINT>(*number);
    } else if (const auto* exact = std::get_if<base::Decimal>(&value)) {
        setNumber(*exact, column);
    } else if (const auto* floating = std::get_if<double>(&value)) {
        value_ = static_cast<SQLDOUBLE>(*floating);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        setText(*text, column);
    } else {
        value_ = timestampFrom(std::get<base::DateTime>(value));
    }
}

void Parameter::setNumber(const base::Decimal& number, const Column& column) {
    base::Decimal rounded = number;
    if (column.type() == FieldType::decimal && column.scale >= 0 && column.scale < number.scale())
        rounded = number.rounded(column.scale);
    value_ = Number{rounded.toString(), static_cast<SQLSMALLINT>(rounded.scale())};
}

/// What is no number stays a text: the server says what is wrong with it.
void Parameter::setText(const std::string& text, const Column& column) {
    const FieldType type = column.type();
    const auto number = type == FieldType::text || type == FieldType::dateTime
                            ? std::nullopt
                            : base::Decimal::parse(base::trim(text));
    if (number && (type == FieldType::decimal || type == FieldType::floating))
        setNumber(*number, column);
    else if (number && number->scale() == 0 && servers::isIntegral(type))
        value_ = static_cast<SQLBIGINT>(number->units());
    else if (number && number->scale() == 0 && type == FieldType::flag)
        value_ = static_cast<SQLCHAR>(number->units() != 0 ? 1 : 0);
    else
        value_ = wide(text);
}

SQLRETURN Parameter::bindTo(SQLHSTMT statement, SQLUSMALLINT number) {
    const auto bind = [&](SQLSMALLINT cType, SQLSMALLINT sqlType, SQLULEN size, SQLSMALLINT scale,
                          SQLPOINTER data) {
        return SQLBindParameter(statement, number, SQL_PARAM_INPUT, cType, sqlType, size, scale, data,
                                std::max<SQLLEN>(length_, 0), &length_);
    };
    constexpr SQLULEN momentDigits = 23;
    constexpr SQLSMALLINT milliseconds = 3;
    constexpr SQLULEN longestText = 4000;
    if (auto* text = std::get_if<std::u16string>(&value_)) {
        length_ = static_cast<SQLLEN>(text->size() * sizeof(SQLWCHAR));
        const bool isLong = text->size() > longestText;
        return bind(SQL_C_WCHAR, isLong ? SQL_WLONGVARCHAR : SQL_WVARCHAR, std::max<SQLULEN>(text->size(), 1),
                    0, text->data());
    }
    if (auto* exact = std::get_if<Number>(&value_)) {
        length_ = static_cast<SQLLEN>(exact->text.size());
        return bind(SQL_C_CHAR, SQL_NUMERIC, mostDigits, exact->scale, exact->text.data());
    }
    if (auto* integer = std::get_if<SQLBIGINT>(&value_))
        return bind(SQL_C_SBIGINT, SQL_BIGINT, 0, 0, integer);
    if (auto* floating = std::get_if<SQLDOUBLE>(&value_))
        return bind(SQL_C_DOUBLE, SQL_DOUBLE, 0, 0, floating);
    if (auto* flag = std::get_if<SQLCHAR>(&value_)) return bind(SQL_C_BIT, SQL_BIT, 0, 0, flag);
    if (auto* moment = std::get_if<SQL_TIMESTAMP_STRUCT>(&value_))
        return bind(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, momentDigits, milliseconds, moment);
    return bind(SQL_C_CHAR, sqlType_, 1, 0, nullptr);
}

} // namespace tellurix::odbc
