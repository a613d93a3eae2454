#include "database/ado/values.h"

#include "com/automation/AutomationError.h"
#include "database/ado/constants.h"
#include "database/servers/server_values.h"

#include <cmath>
#include <cstdint>

namespace tellurix::windows::ado {

namespace {

using base::FieldType;
using std::chrono::milliseconds;

constexpr base::DateTime firstDay = base::startOf(std::chrono::year{1899} / 12 / 30);
constexpr double millisecondsOfDay = 86'400'000.0;

bool fits(const DECIMAL& number) {
    return number.Hi32 == 0 && number.Lo64 <= static_cast<ULONGLONG>(base::Decimal::maxUnits) &&
           number.scale <= base::Decimal::maxScale;
}

/// Takes the last digit off the 96 bits, and tells it.
std::uint64_t removeLastDigit(DECIMAL& number) {
    const std::uint64_t middle = (std::uint64_t{number.Hi32 % 10} << 32) | number.Mid32;
    const std::uint64_t low = (middle % 10 << 32) | number.Lo32;
    number.Hi32 /= 10;
    number.Mid32 = static_cast<ULONG>(middle / 10);
    number.Lo32 = static_cast<ULONG>(low / 10);
    --number.scale;
    return low % 10;
}

/// Decimals that 18 digits have no room for are rounded off, half away from zero.
base::Decimal decimalFrom(DECIMAL number) {
    while (number.scale > 0 && !fits(number))
        if (removeLastDigit(number) >= 5 && fits(number)) ++number.Lo64;
    if (!fits(number))
        throw AutomationError(DISP_E_OVERFLOW, "The number has more than 18 digits before the point");
    const auto units = static_cast<std::int64_t>(number.Lo64);
    return base::Decimal((number.sign & DECIMAL_NEG) != 0 ? -units : units, number.scale);
}

DECIMAL decimalOf(CY amount) {
    DECIMAL number{};
    check(VarDecFromCy(amount, &number), "Reading an amount of money");
    return number;
}

/// Some providers hand on large integers as decimals.
base::Value numberFrom(const DECIMAL& number, FieldType type) {
    const base::Decimal value = decimalFrom(number);
    if (!servers::isIntegral(type)) return value;
    return value.rounded(0).units();
}

/// As much of the value as the column takes: a flag for a bit, the number itself for the rest.
Variant integerFor(std::int64_t number, FieldType type) {
    switch (type) {
    case FieldType::flag:
        return number != 0;
    case FieldType::tinyInteger:
        if (number >= 0 && number <= UINT8_MAX) return Variant(static_cast<std::int32_t>(number)).as(VT_UI1);
        break;
    case FieldType::smallInteger:
        if (number >= INT16_MIN && number <= INT16_MAX) return static_cast<std::int16_t>(number);
        break;
    default:
        break;
    }
    if (number >= INT32_MIN && number <= INT32_MAX) return static_cast<std::int32_t>(number);
    return number;
}

} // namespace

FieldType fieldTypeOf(std::int32_t dataType) {
    switch (dataType) {
    case adBoolean:
        return FieldType::flag;
    case adTinyInt:
    case adUnsignedTinyInt:
        return FieldType::tinyInteger;
    case adSmallInt:
        return FieldType::smallInteger;
    case adInteger:
    case adUnsignedSmallInt:
        return FieldType::integer;
    case adUnsignedInt:
    case adBigInt:
    case adUnsignedBigInt:
        return FieldType::bigInteger;
    case adDecimal:
    case adNumeric:
    case adVarNumeric:
    case adCurrency:
        return FieldType::decimal;
    case adSingle:
    case adDouble:
        return FieldType::floating;
    case adDate:
    case adDBDate:
    case adDBTime:
    case adDBTimeStamp:
        return FieldType::dateTime;
    default:
        return FieldType::text;
    }
}

std::int32_t dataTypeOf(FieldType type) {
    switch (type) {
    case FieldType::flag:
        return adBoolean;
    case FieldType::tinyInteger:
        return adUnsignedTinyInt;
    case FieldType::smallInteger:
        return adSmallInt;
    case FieldType::integer:
        return adInteger;
    case FieldType::bigInteger:
        return adBigInt;
    case FieldType::decimal:
        return adNumeric;
    case FieldType::floating:
        return adDouble;
    case FieldType::dateTime:
        return adDBTimeStamp;
    case FieldType::text:
        break;
    }
    return adVarWChar;
}

base::Value valueOf(const VARIANT& value, FieldType type) {
    switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return base::Null{};
    case VT_BOOL:
        return value.boolVal != VARIANT_FALSE;
    case VT_I1:
        return std::int64_t{value.cVal};
    case VT_UI1:
        return std::int64_t{value.bVal};
    case VT_I2:
        return std::int64_t{value.iVal};
    case VT_UI2:
        return std::int64_t{value.uiVal};
    case VT_I4:
    case VT_INT:
        return std::int64_t{value.lVal};
    case VT_UI4:
    case VT_UINT:
        return std::int64_t{value.ulVal};
    case VT_I8:
        return std::int64_t{value.llVal};
    case VT_UI8:
        return std::int64_t{Variant::copyOf(value).as(VT_I8).llVal};
    case VT_R4:
        return servers::doubleFrom(value.fltVal);
    case VT_R8:
        return value.dblVal;
    case VT_CY:
        return numberFrom(decimalOf(value.cyVal), type);
    case VT_DECIMAL:
        return numberFrom(value.decVal, type);
    case VT_DATE:
        return momentOf(value.date);
    default:
        return Variant::copyOf(value).text();
    }
}

Variant variantOf(const base::Value& value, FieldType type) {
    struct Converter {
        FieldType type;

        Variant operator()(base::Null) const { return Variant::null(); }
        Variant operator()(bool flag) const { return flag; }
        Variant operator()(std::int64_t number) const { return integerFor(number, type); }
        Variant operator()(const base::Decimal& number) const { return decimalOf(number); }
        Variant operator()(double number) const { return number; }
        Variant operator()(const std::string& text) const { return text; }
        Variant operator()(base::DateTime moment) const { return Variant::oleDate(oleDateOf(moment)); }
    };
    return std::visit(Converter{type}, value);
}

DECIMAL decimalOf(const base::Decimal& number) {
    DECIMAL decimal{};
    decimal.scale = static_cast<BYTE>(number.scale());
    decimal.sign = number.units() < 0 ? DECIMAL_NEG : 0;
    decimal.Lo64 = static_cast<ULONGLONG>(std::abs(number.units()));
    return decimal;
}

base::DateTime momentOf(DATE date) {
    const double day = std::trunc(date);
    const double time = std::abs(date - day);
    return firstDay + std::chrono::days{static_cast<int>(day)} +
           milliseconds{std::llround(time * millisecondsOfDay)};
}

DATE oleDateOf(base::DateTime moment) {
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const auto day =
        static_cast<double>((midnight - std::chrono::floor<std::chrono::days>(firstDay)).count());
    const double time = static_cast<double>((moment - midnight).count()) / millisecondsOfDay;
    return day < 0 ? day - time : day + time;
}

} // namespace tellurix::windows::ado
