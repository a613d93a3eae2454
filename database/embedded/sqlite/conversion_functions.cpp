#include "database/embedded/sqlite/scalar_call.h"
#include "database/embedded/values/blanks.h"
#include "database/embedded/values/date_text.h"
#include "database/embedded/values/decimal_units.h"
#include "database/embedded/values/packed.h"
#include "database/embedded/values/utf8.h"
#include "module/base/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace tellurix::embedded {

namespace {

/// Most conversions take: value, packed target type, position, and perhaps the column that the
/// value is written to. That column is what a user can look for, so the error names it.
std::string destination(const ScalarCall& call, int labelAt, const Type& type) {
    std::string text = describe(type);
    if (call.count() > labelAt) text = "column " + std::string(call.text(labelAt)) + " (" + text + ")";
    return text;
}

[[noreturn]] void failValue(const ScalarCall& call, const std::string& value, const Type& type) {
    failConversion(value + " does not fit " + destination(call, 3, type), call.position(2));
}

[[noreturn]] void failText(const ScalarCall& call, const Type& type) {
    failConversion("The text '" + excerpt(call.text(0)) + "' is no value for " + destination(call, 3, type),
                   call.position(2));
}

void answerInRange(ScalarCall& call, std::int64_t value, const Type& type) {
    if (value < smallestOf(type.kind) || value > largestOf(type.kind))
        failValue(call, "The number " + std::to_string(value), type);
    call.answer(value);
}

void answerDecimal(ScalarCall& call, std::optional<std::int64_t> units, const Type& type,
                   const std::string& value) {
    const std::int64_t limit = powerOfTen(type.precision);
    if (!units || *units >= limit || *units <= -limit) failValue(call, value, type);
    call.answer(*units);
}

void textToInteger(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    std::string_view text = trimmed(call.text(0));
    if (text.empty()) return call.answer(std::int64_t{0}); // as the server does
    if (text.front() == '+') text.remove_prefix(1);
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error == std::errc::result_out_of_range) failValue(call, "The number " + excerpt(text), type);
    if (error != std::errc{} || stop != end) failText(call, type);
    answerInRange(call, value, type);
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool readsAsNumber(std::string_view text) {
    const auto takeSign = [&] {
        if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    };
    bool money = false;
    bool anything = !text.empty();
    takeSign();
    for (const std::string_view sign : {"$", "€", "£", "¥"})
        if (text.starts_with(sign)) {
            text.remove_prefix(sign.size());
            money = true;
        }
    if (money) takeSign();
    bool digits = false;
    bool point = false;
    while (!text.empty() &&
           (isDigit(text.front()) || text.front() == ',' || (text.front() == '.' && !point))) {
        digits = digits || isDigit(text.front());
        money = money || text.front() == ',';
        point = point || text.front() == '.';
        text.remove_prefix(1);
    }
    if (digits && !money && !text.empty() && (text.front() == 'e' || text.front() == 'E')) {
        text.remove_prefix(1);
        takeSign();
        while (!text.empty() && isDigit(text.front()))
            text.remove_prefix(1);
    }
    return anything && text.empty();
}

bool equalsWord(std::string_view text, std::string_view lowerWord) {
    return text.size() == lowerWord.size() &&
           std::equal(text.begin(), text.end(), lowerWord.begin(),
                      [](char left, char right) { return (left | ' ') == right; });
}

void textToBit(ScalarCall& call) {
    const std::string_view text = trimmed(call.text(0));
    if (equalsWord(text, "true")) return call.answer(std::int64_t{1});
    if (text.empty() || equalsWord(text, "false")) return call.answer(std::int64_t{0});
    const auto number = base::Decimal::parse(text);
    if (!number || number->scale() != 0) failText(call, Type::of(TypeKind::bit));
    call.answer(std::int64_t{number->units() != 0});
}

void textToDecimal(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const std::string_view text = trimmed(call.text(0));
    // The server reads an exponent only where a float is wanted.
    const bool exponent = text.find_first_of("eE") != std::string_view::npos;
    const auto number = exponent ? std::nullopt : base::Decimal::parse(text);
    if (!number) failText(call, type);
    answerDecimal(call, rescaled(number->units(), number->scale(), type.scale), type,
                  "The number " + excerpt(text));
}

void textToFloat(ScalarCall& call) {
    std::string_view text = trimmed(call.text(0));
    if (text.empty()) return call.answer(0.0);
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || !std::isfinite(value))
        failText(call, Type::of(TypeKind::floating));
    call.answer(value);
}

void textToDate(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const auto moment = readDate(call.text(0), call.session().options.dateOrder);
    if (!moment) failText(call, type);
    call.answer(toMilliseconds(type.dayOnly ? std::chrono::floor<std::chrono::days>(*moment) : *moment));
}

/// Text, packed target type, position, style.
void styledTextToDate(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const auto moment = readStyledDate(call.text(0), call.smallInteger(3));
    if (!moment)
        failConversion("The text '" + excerpt(call.text(0)) + "' is no date in style " +
                           std::to_string(call.integer(3)),
                       call.position(2));
    call.answer(toMilliseconds(type.dayOnly ? std::chrono::floor<std::chrono::days>(*moment) : *moment));
}

void isDate(ScalarCall& call) {
    call.answer(std::int64_t{!trimmed(call.text(0)).empty() &&
                             readDate(call.text(0), call.session().options.dateOrder)});
}

/// Whether some type of numbers takes the text: a float, or money with its sign and commas.
void isNumeric(ScalarCall& call) {
    call.answer(std::int64_t{readsAsNumber(trimmed(call.text(0)))});
}

void integerToInteger(ScalarCall& call) {
    answerInRange(call, call.integer(0), unpackType(call.integer(1)));
}

std::string decimalText(std::int64_t units, int scale) {
    return base::Decimal(units, scale).toString();
}

void decimalToDecimal(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const int scale = unpackSourceScale(call.integer(1));
    const auto units = rescaled(call.integer(0), scale, type.scale);
    const std::int64_t limit = powerOfTen(type.precision);
    if (units && *units<limit&& * units> - limit) return call.answer(*units);
    failValue(call, "The number " + decimalText(call.integer(0), scale), type);
}

void decimalToInteger(ScalarCall& call) {
    const int scale = unpackSourceScale(call.integer(1));
    answerInRange(call, call.integer(0) / powerOfTen(scale), unpackType(call.integer(1)));
}

void floatToDecimal(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    std::optional<std::int64_t> units;
    const double value = call.floating(0);
    try {
        const base::Decimal decimal = base::Decimal::fromDouble(value);
        units = rescaled(decimal.units(), decimal.scale(), type.scale);
    } catch (const std::out_of_range&) {
        // Too many digits: a small number still has a nearest value in this scale.
        if (std::abs(value) < 1) units = std::llround(value * static_cast<double>(powerOfTen(type.scale)));
    }
    answerDecimal(call, units, type, "The number " + std::to_string(value));
}

void floatToInteger(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const double value = std::trunc(call.floating(0));
    constexpr double limit = 9.2e18;
    if (!(value > -limit && value < limit)) failValue(call, "The number " + std::to_string(value), type);
    answerInRange(call, static_cast<std::int64_t>(value), type);
}

void decimalToText(ScalarCall& call) {
    call.answer(decimalText(call.integer(0), call.smallInteger(1)));
}

/// Six digits, as the server writes a float.
void floatToText(ScalarCall& call) {
    std::array<char, 32> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.6g", call.floating(0));
    std::string text(buffer.data(), static_cast<std::size_t>(length));
    const std::size_t exponent = text.find('e');
    if (exponent != std::string::npos && text.size() - exponent == 4)
        text.insert(exponent + 2, 1, '0'); // exponents have three digits there
    call.answer(text);
}

void dateToText(ScalarCall& call) {
    const auto text = writeDate(fromMilliseconds(call.integer(0)), call.smallInteger(1));
    if (!text)
        failConversion("The style " + std::to_string(call.integer(1)) + " is not supported",
                       call.position(2));
    call.answer(*text);
}

std::string padTo(std::string_view text, const Type& type) {
    std::string filled(text);
    const std::size_t units = utf16Length(text);
    if (units < static_cast<std::size_t>(type.length))
        filled.append(static_cast<std::size_t>(type.length) - units, ' ');
    return filled;
}

/// A text on its way into a column: too long is an error, blanks at the end do not count.
void fitText(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const std::string_view text = call.text(0);
    const auto length = static_cast<std::size_t>(type.length);
    if (text.size() > length && utf16Length(text) > length) {
        const std::string_view kept = utf16Prefix(text, length);
        if (text.find_first_not_of(' ', kept.size()) != std::string_view::npos)
            failConversion("The text '" + excerpt(text) + "' is too long for " + destination(call, 3, type),
                           call.position(2));
        return call.answer(kept);
    }
    if (type.padded) return call.answer(padTo(text, type));
    call.answerArgument(0);
}

/// A text that is cast to a shorter one is cut.
void cutText(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    const std::string_view text = call.text(0);
    const std::string_view kept = utf16Prefix(text, static_cast<std::size_t>(type.length));
    if (type.padded) return call.answer(padTo(kept, type));
    if (kept.size() == text.size()) return call.answerArgument(0);
    call.answer(kept);
}

/// A number that was made a text must not be cut.
void needText(ScalarCall& call) {
    const Type type = unpackType(call.integer(1));
    if (utf16Length(call.text(0)) > static_cast<std::size_t>(type.length))
        failValue(call, "The number " + std::string(call.text(0)), type);
    call.answerArgument(0);
}

} // namespace

std::string excerpt(std::string_view text) {
    constexpr std::size_t longest = 60;
    if (text.size() <= longest) return std::string(text);
    return std::string(utf16Prefix(text, longest)) + "…";
}

void registerConversions(sqlite3* connection, SqlSession& session) {
    constexpr int withOrWithoutLabel = -1;
    registerScalar<textToInteger, 1>(connection, "ts_text_int", withOrWithoutLabel, session);
    registerScalar<textToBit, 1>(connection, "ts_text_bit", withOrWithoutLabel, session);
    registerScalar<textToDecimal, 1>(connection, "ts_text_dec", withOrWithoutLabel, session);
    registerScalar<textToFloat, 1>(connection, "ts_text_float", withOrWithoutLabel, session);
    registerScalar<textToDate, 1>(connection, "ts_text_date", withOrWithoutLabel, session);
    registerScalar<styledTextToDate, 1>(connection, "ts_styled_date", 4, session);
    registerScalar<isDate, 1>(connection, "ts_isdate", 1, session);
    registerScalar<isNumeric, 1>(connection, "ts_isnumeric", 1, session);
    registerScalar<integerToInteger, 1>(connection, "ts_int_int", withOrWithoutLabel, session);
    registerScalar<decimalToDecimal, 1>(connection, "ts_dec_dec", withOrWithoutLabel, session);
    registerScalar<decimalToInteger, 1>(connection, "ts_dec_int", withOrWithoutLabel, session);
    registerScalar<floatToDecimal, 1>(connection, "ts_float_dec", withOrWithoutLabel, session);
    registerScalar<floatToInteger, 1>(connection, "ts_float_int", withOrWithoutLabel, session);
    registerScalar<decimalToText, 1>(connection, "ts_dec_text", 2, session);
    registerScalar<floatToText, 1>(connection, "ts_float_text", 1, session);
    registerScalar<dateToText, 2>(connection, "ts_date_text", 3, session);
    registerScalar<fitText, 1>(connection, "ts_fit", withOrWithoutLabel, session);
    registerScalar<cutText, 1>(connection, "ts_cut", 2, session);
    registerScalar<needText, 1>(connection, "ts_need", withOrWithoutLabel, session);
}

} // namespace tellurix::embedded
