#include "tests/database/tds/TdsMessage.h"

#include "database/odbc/wide.h"
#include "module/base/text.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <stdexcept>

namespace tellurix::tests {

namespace {

using base::FieldType;

constexpr std::string_view collation{"\x09\x04\xd0\x00\x34", 5};
constexpr base::DateTime firstDay = base::startOf(std::chrono::year{1900} / 1 / 1);

std::string utf16(std::string_view utf8) {
    const std::u16string wide = odbc::wide(utf8);
    return {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t)};
}

std::string fromUtf16(std::string_view bytes) {
    std::u16string wide(bytes.size() / sizeof(char16_t), u'\0');
    std::memcpy(wide.data(), bytes.data(), bytes.size());
    return odbc::narrow(wide);
}

int widthOf(FieldType type) {
    switch (type) {
    case FieldType::flag:
    case FieldType::tinyInteger:
        return 1;
    case FieldType::smallInteger:
        return 2;
    case FieldType::integer:
        return 4;
    default:
        return 8;
    }
}

} // namespace

TdsTable::TdsTable(base::Recordset& answer, bool withRows) {
    for (std::size_t index = 0; index < answer.fieldCount(); ++index)
        columns.push_back({answer.fieldName(index), answer.fieldType(index), answer.textWidth(index)});
    for (; withRows && !answer.atEnd(); answer.moveNext()) {
        rows.emplace_back();
        for (std::size_t index = 0; index < columns.size(); ++index) {
            rows.back().push_back(answer.field(index));
            if (const auto* decimal = std::get_if<base::Decimal>(&rows.back().back()))
                columns[index].scale = decimal->scale();
        }
    }
}

void TdsMessage::number(std::uint64_t value, int bytes) {
    for (int index = 0; index < bytes; ++index, value >>= 8)
        bytes_ += static_cast<char>(value & 0xFF);
}

void TdsMessage::text(std::string_view utf8, int lengthBytes) {
    const std::string wide = utf16(utf8);
    number(wide.size() / sizeof(char16_t), lengthBytes);
    raw(wide);
}

void TdsMessage::loginAccepted() {
    number(0xE3, 1); // the packets stay as large as they are
    number(19, 2);
    number(4, 1);
    text("4096", 1);
    text("4096", 1);
    number(0xAD, 1);
    number(10 + 2 * 4, 2);
    number(1, 1);
    raw(std::string_view{"\x74\x00\x00\x04", 4});
    text("Test", 1);
    raw(std::string_view{"\x0f\x00\x00\x00", 4});
    done(0xFD, false, -1);
}

void TdsMessage::type(const TdsTable::Column& column) {
    switch (column.type) {
    case FieldType::flag:
        number(0x68, 1);
        number(1, 1);
        return;
    case FieldType::tinyInteger:
    case FieldType::smallInteger:
    case FieldType::integer:
    case FieldType::bigInteger:
        number(0x26, 1);
        number(static_cast<std::uint64_t>(widthOf(column.type)), 1);
        return;
    case FieldType::decimal:
        number(0x6C, 1);
        number(9, 1);
        number(18, 1);
        number(static_cast<std::uint64_t>(column.scale), 1);
        return;
    case FieldType::floating:
        number(0x6D, 1);
        number(8, 1);
        return;
    case FieldType::dateTime:
        number(0x6F, 1);
        number(8, 1);
        return;
    case FieldType::text:
        break;
    }
    number(0xE7, 1);
    number(column.width == 0 ? 0xFFFF : static_cast<std::uint64_t>(column.width) * 2, 2);
    raw(collation);
}

void TdsMessage::columns(const TdsTable& table) {
    number(0x81, 1);
    number(table.columns.size(), 2);
    for (const TdsTable::Column& column : table.columns) {
        number(0, 4);
        number(9, 2);
        type(column);
        text(column.name, 1);
    }
}

void TdsMessage::rows(const TdsTable& table) {
    for (const std::vector<base::Value>& row : table.rows) {
        number(0xD1, 1);
        for (std::size_t index = 0; index < row.size(); ++index)
            value(table.columns[index], row[index]);
    }
}

void TdsMessage::value(const TdsTable::Column& column, const base::Value& held) {
    const FieldType kind = column.type;
    const bool unlimited = kind == FieldType::text && column.width == 0;
    if (std::holds_alternative<base::Null>(held)) {
        if (unlimited)
            number(~std::uint64_t{0}, 8);
        else if (kind == FieldType::text)
            number(0xFFFF, 2);
        else
            number(0, 1);
        return;
    }
    if (kind == FieldType::text) {
        const std::string wide = utf16(std::get<std::string>(held));
        number(wide.size(), unlimited ? 8 : 2);
        if (unlimited && !wide.empty()) number(wide.size(), 4);
        raw(wide);
        if (unlimited) number(0, 4);
        return;
    }
    if (const auto* decimal = std::get_if<base::Decimal>(&held)) {
        number(9, 1);
        number(decimal->units() < 0 ? 0 : 1, 1);
        number(static_cast<std::uint64_t>(std::abs(decimal->units())), 8);
        return;
    }
    const int width = widthOf(kind);
    number(static_cast<std::uint64_t>(width), 1);
    if (const auto* flag = std::get_if<bool>(&held)) {
        number(*flag ? 1 : 0, 1);
    } else if (const auto* integer = std::get_if<std::int64_t>(&held)) {
        number(static_cast<std::uint64_t>(*integer), width);
    } else if (const auto* floating = std::get_if<double>(&held)) {
        number(std::bit_cast<std::uint64_t>(*floating), 8);
    } else {
        const auto moment = std::get<base::DateTime>(held);
        const auto day = std::chrono::floor<std::chrono::days>(moment);
        const auto days = (day - std::chrono::floor<std::chrono::days>(firstDay)).count();
        number(static_cast<std::uint64_t>(static_cast<std::int64_t>(days)), 4);
        constexpr double ticksOfMillisecond = 0.3;
        number(static_cast<std::uint64_t>(
                   std::llround(static_cast<double>((moment - day).count()) * ticksOfMillisecond)),
               4);
    }
}

void TdsMessage::error(int nativeCode, std::string_view message) {
    const std::string shortened{message.substr(0, 1000)};
    TdsMessage body;
    body.number(static_cast<std::uint64_t>(nativeCode), 4);
    body.number(1, 1);
    body.number(16, 1);
    body.text(shortened, 2);
    body.text("Test", 1);
    body.text("", 1);
    body.number(1, 4);
    number(0xAA, 1);
    number(body.bytes().size(), 2);
    raw(body.bytes());
}

void TdsMessage::returnValue(std::int32_t handle) {
    number(0xAC, 1);
    number(0, 2);
    text("@handle", 1);
    number(1, 1);
    number(0, 4);
    number(0, 2);
    number(0x26, 1);
    number(4, 1);
    number(4, 1);
    number(static_cast<std::uint64_t>(handle), 4);
}

void TdsMessage::done(std::uint8_t token, bool failed, std::int64_t count, bool more) {
    number(token, 1);
    number((more ? 1U : 0U) | (failed ? 2U : 0U) | (count >= 0 ? 0x10U : 0U), 2);
    number(count >= 0 ? 0xC5 : 0, 2);
    number(count >= 0 ? static_cast<std::uint64_t>(count) : 0, 8);
}

std::uint64_t TdsReader::number(int bytes) {
    std::uint64_t value = 0;
    const std::string_view part = raw(static_cast<std::size_t>(bytes));
    for (std::size_t index = part.size(); index-- > 0;)
        value = value << 8 | static_cast<unsigned char>(part[index]);
    return value;
}

std::string_view TdsReader::raw(std::size_t bytes) {
    if (bytes > rest_.size()) throw std::runtime_error{"the client's message is too short"};
    const std::string_view part = rest_.substr(0, bytes);
    rest_.remove_prefix(bytes);
    return part;
}

std::string TdsReader::text(std::size_t characters) {
    return fromUtf16(raw(characters * sizeof(char16_t)));
}

TdsReader::Parameter TdsReader::parameter() {
    Parameter result;
    result.name = text(number(1));
    number(1);
    const auto quoted = [](const std::string& text) {
        return "N'" + base::replaceAll(text, "'", "''") + "'";
    };
    switch (const std::uint64_t type = number(1)) {
    case 0xE7:   // nvarchar
    case 0xEF:   // nchar
    case 0xA7: { // varchar
        const std::uint64_t most = number(2);
        raw(collation.size());
        result.type = "nvarchar(max)";
        result.literal = "NULL";
        std::string bytes;
        if (most == 0xFFFF) {
            if (number(8) == ~std::uint64_t{0}) return result;
            for (std::uint64_t part = number(4); part != 0; part = number(4))
                bytes += raw(part);
        } else {
            const std::uint64_t length = number(2);
            if (length == 0xFFFF) return result;
            bytes = raw(length);
        }
        result.plain = type == 0xA7 ? bytes : fromUtf16(bytes);
        result.literal = quoted(result.plain);
        return result;
    }
    case 0x63: { // ntext
        number(4);
        raw(collation.size());
        result.type = "nvarchar(max)";
        const auto length = static_cast<std::int32_t>(number(4));
        if (length >= 0) result.plain = fromUtf16(raw(static_cast<std::size_t>(length)));
        result.literal = length < 0 ? "NULL" : quoted(result.plain);
        return result;
    }
    case 0x26:   // int
    case 0x68: { // bit
        const std::uint64_t width = number(1);
        const auto length = static_cast<int>(number(1));
        result.type = type == 0x68 ? "bit" : width == 8 ? "bigint" : "int";
        result.literal = "NULL";
        if (length == 0) return result;
        const int unused = 64 - 8 * length;
        result.integer = static_cast<std::int64_t>(number(length) << unused) >> unused;
        result.literal = type == 0x68 && result.integer != 0 ? "1" : std::to_string(result.integer);
        return result;
    }
    case 0x6A:
    case 0x6C: { // decimal, numeric
        number(1);
        const auto digits = number(1);
        const auto scale = static_cast<int>(number(1));
        const auto length = static_cast<int>(number(1));
        result.type = "decimal(" + std::to_string(std::min<std::uint64_t>(digits, 18)) + "," +
                      std::to_string(scale) + ")";
        result.literal = "NULL";
        if (length == 0) return result;
        const bool positive = number(1) != 0;
        const auto units = static_cast<std::int64_t>(number(std::min(length - 1, 8)));
        raw(static_cast<std::size_t>(std::max(length - 9, 0)));
        result.literal = base::Decimal(positive ? units : -units, scale).toString();
        return result;
    }
    case 0x6D: { // float
        number(1);
        result.type = "float";
        result.literal = "NULL";
        if (number(1) == 0) return result;
        std::array<char, 40> digits{};
        std::snprintf(digits.data(), digits.size(), "%.17e", std::bit_cast<double>(number(8)));
        result.literal = digits.data();
        return result;
    }
    case 0x6F:   // datetime
    case 0x2A: { // datetime2
        const auto form = number(1);
        result.type = "datetime";
        result.literal = "NULL";
        const auto length = static_cast<int>(number(1));
        if (length == 0) return result;
        base::DateTime moment = firstDay;
        if (type == 0x6F) {
            moment += std::chrono::days{static_cast<std::int32_t>(number(4))};
            moment += std::chrono::milliseconds{std::llround(static_cast<double>(number(4)) / 0.3)};
        } else {
            const double fraction =
                static_cast<double>(number(length - 3)) / std::pow(10, static_cast<double>(form));
            moment = base::startOf(std::chrono::year{1} / 1 / 1) + std::chrono::days{number(3)};
            moment += std::chrono::milliseconds{std::llround(fraction * 1000)};
        }
        const base::Date day = base::dayOf(moment);
        const std::chrono::hh_mm_ss time{moment - std::chrono::floor<std::chrono::days>(moment)};
        std::array<char, 64> written{};
        std::snprintf(written.data(), written.size(), "'%04d%02u%02u %02d:%02d:%02d.%03d'",
                      static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                      static_cast<unsigned>(day.day()), static_cast<int>(time.hours().count()),
                      static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()),
                      static_cast<int>(time.subseconds().count()));
        result.literal = written.data();
        return result;
    }
    default:
        throw std::runtime_error{"a parameter of a type that the test's server does not know: " +
                                 std::to_string(type)};
    }
}

} // namespace tellurix::tests
