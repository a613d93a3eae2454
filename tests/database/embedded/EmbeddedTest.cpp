#include "tests/database/embedded/EmbeddedTest.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <type_traits>

namespace tellurix::embedded {

namespace {

std::string digits(long long value, int width) {
    std::array<char, 24> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%0*lld", width, value);
    return buffer.data();
}

std::string writtenDate(base::DateTime moment) {
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const base::Date date{midnight};
    const std::chrono::hh_mm_ss time{moment - midnight};
    std::string text = digits(static_cast<int>(date.year()), 4) + "-" +
                       digits(static_cast<unsigned>(date.month()), 2) + "-" +
                       digits(static_cast<unsigned>(date.day()), 2);
    if (moment == midnight) return text;
    text += " " + digits(time.hours().count(), 2) + ":" + digits(time.minutes().count(), 2) + ":" +
            digits(time.seconds().count(), 2);
    if (time.subseconds().count() != 0) text += "." + digits(time.subseconds().count(), 3);
    return text;
}

std::string writtenNumber(double number) {
    std::array<char, 40> buffer{};
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr};
}

} // namespace

std::string written(const base::Value& value) {
    return std::visit(
        [](const auto& held) -> std::string {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, base::Null>)
                return "NULL";
            else if constexpr (std::is_same_v<Held, bool>)
                return held ? "true" : "false";
            else if constexpr (std::is_same_v<Held, std::int64_t>)
                return std::to_string(held);
            else if constexpr (std::is_same_v<Held, base::Decimal>)
                return held.toString();
            else if constexpr (std::is_same_v<Held, double>)
                return writtenNumber(held);
            else if constexpr (std::is_same_v<Held, std::string>)
                return held.empty() ? "''" : held;
            else
                return writtenDate(held);
        },
        value);
}

std::string writtenRow(base::Recordset& rows) {
    std::string text;
    for (std::size_t index = 0; index < rows.fieldCount(); ++index)
        text += (index == 0 ? "" : " | ") + written(rows.field(index));
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

std::string answer(base::Connection& connection, std::string_view query) {
    const auto rows = connection.open(query);
    if (rows->atEnd()) return "no rows";
    std::string text;
    for (; !rows->atEnd(); rows->moveNext())
        text += (text.empty() ? "" : "\n") + writtenRow(*rows);
    return text;
}

std::string nameOf(base::DatabaseErrorCategory category) {
    using Category = base::DatabaseErrorCategory;
    switch (category) {
    case Category::syntax:
        return "syntax";
    case Category::unknownName:
        return "unknownName";
    case Category::conversion:
        return "conversion";
    case Category::constraint:
        return "constraint";
    case Category::locked:
        return "locked";
    case Category::connection:
        return "connection";
    case Category::storageFull:
        return "storageFull";
    case Category::readOnly:
        return "readOnly";
    case Category::damaged:
        return "damaged";
    case Category::missing:
        return "missing";
    case Category::other:
        return "other";
    }
    return {};
}

} // namespace tellurix::embedded
