#include "standin/services/spreadsheets/cell_values.h"

#include "module/base/Decimal.h"
#include "module/base/number_format.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tellurix::standin {

namespace {

/// Digits that a double keeps whatever they are.
constexpr std::ptrdiff_t keptDigits = 15;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The mask that shows a number with as many decimals and leading zeros as the text has.
std::string maskOf(const std::string& text, const base::Locale& locale) {
    const auto point = std::min(text.find(locale.decimal), text.size());
    const std::string whole = text.substr(0, point);
    const auto decimals =
        std::count_if(text.begin() + static_cast<std::ptrdiff_t>(point), text.end(), isDigit);
    const auto digits = std::ranges::count_if(whole, isDigit);
    const auto first = std::ranges::find_if(whole, isDigit);
    std::string mask = "0";
    if (digits > 1 && *first == '0')
        mask = std::string(static_cast<std::size_t>(digits), '0');
    else if (whole.find(locale.grouping) != std::string::npos)
        mask = "#,##0";
    if (decimals > 0) mask += "." + std::string(static_cast<std::size_t>(decimals), '0');
    return mask;
}

/// Reads the digits of a text into the places of a pattern such as "dd.mm.yyyy". @return whether it fits
bool fits(const std::string& text, std::string_view pattern, std::array<int, 6>& parts) {
    if (text.size() != pattern.size()) return false;
    constexpr std::string_view letters = "dMyhms";
    parts = {};
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const auto part = letters.find(pattern[i]);
        if (part == std::string_view::npos) {
            if (text[i] != pattern[i]) return false;
        } else {
            if (!isDigit(text[i])) return false;
            parts.at(part) = parts.at(part) * 10 + (text[i] - '0');
        }
    }
    return true;
}

} // namespace

std::optional<NumberCell> numberIn(const std::string& text, const base::Locale& locale) {
    const auto number = base::parseNumber(text, locale);
    if (!number || std::ranges::count_if(text, isDigit) > keptDigits) return std::nullopt;
    return NumberCell{std::strtod(number->toString().c_str(), nullptr), maskOf(text, locale)};
}

std::optional<DateCell> dateIn(const std::string& text) {
    struct Form {
        std::string_view pattern;
        const char* mask;
    };
    constexpr std::array<Form, 3> forms{{{"dd.MM.yyyy", "dd.mm.yyyy"},
                                         {"dd.MM.yyyy hh:mm", "dd.mm.yyyy hh:mm"},
                                         {"dd.MM.yyyy hh:mm:ss", "dd.mm.yyyy hh:mm:ss"}}};
    using namespace std::chrono;
    for (const Form& form : forms) {
        std::array<int, 6> parts{};
        if (!fits(text, form.pattern, parts)) continue;
        const year_month_day date{year{parts[2]}, month{static_cast<unsigned>(parts[1])},
                                  day{static_cast<unsigned>(parts[0])}};
        // The first two months of 1900 are counted in two ways.
        if (!date.ok() || date < year{1900} / March / 1 || parts[3] > 23 || parts[4] > 59 || parts[5] > 59)
            return std::nullopt;
        return DateCell{date, parts[3], parts[4], parts[5], form.mask};
    }
    return std::nullopt;
}

} // namespace tellurix::standin
