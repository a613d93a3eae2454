#include "module/lines/selection_value.h"

#include "module/base/number_format.h"
#include "module/base/text.h"

#include <optional>
#include <vector>

namespace tellurix::lines {

using base::replaceAll;

namespace {

constexpr std::array<Attribute, attributeCount> attributes{
    Attribute::species, Attribute::sort, Attribute::quality, Attribute::strength, Attribute::length};

/// How every condition of an attribute begins: "83 IN (".
std::string openingOf(Attribute attribute) {
    return std::to_string(codeOf(attribute)) + " IN (";
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    if (text.empty()) return pieces;
    for (;;) {
        const std::size_t end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

std::optional<Attribute> attributeOf(std::string_view condition) {
    for (const Attribute attribute : attributes) {
        if (condition.starts_with(openingOf(attribute))) return attribute;
    }
    return std::nullopt;
}

} // namespace

std::string quoteList(std::string_view typed) {
    std::string list{base::trim(typed)};
    while (list.find(", ") != std::string::npos)
        list = replaceAll(std::move(list), ", ", ",");
    return "''" + replaceAll(std::move(list), ",", "'', ''") + "''";
}

std::string lengthsIn(std::string_view typed, const base::Locale& locale) {
    std::string kept;
    for (const std::string_view piece : split(typed, ',')) {
        std::string number{piece};
        if (locale.decimal == ',') number = replaceAll(std::move(number), ".", ",");
        if (!base::isNumeric(number, locale)) continue;
        kept += (kept.empty() ? "" : ", ") + replaceAll(std::move(number), ",", ".");
    }
    return kept;
}

std::string selectionLiteral(const QuickSelection& selection) {
    std::string literal;
    for (const Attribute attribute : attributes) {
        const std::string& typed = selection[attribute];
        if (typed.empty()) continue;
        std::string list = quoteList(typed);
        if (attribute == Attribute::length) list = replaceAll(std::move(list), "''", "");
        literal += openingOf(attribute) + list + ") ;";
    }
    return literal;
}

std::string extractList(std::string_view condition) {
    const std::size_t open = condition.find('(');
    if (open == std::string_view::npos || condition.find(')') == std::string_view::npos) {
        return std::string{condition};
    }
    const std::string_view behind = condition.substr(open + 1);
    std::string list;
    for (const char character : behind.substr(0, behind.find(')'))) {
        if (character != '\'' && character != ' ') list += character;
    }
    return list;
}

QuickSelection readSelection(std::string_view value) {
    QuickSelection selection;
    for (const std::string_view piece : split(value, ';')) {
        if (const auto attribute = attributeOf(piece)) {
            selection[*attribute] = extractList(piece);
        } else if (!base::trim(piece).empty()) {
            return {};
        }
    }
    return selection;
}

bool hasSelection(std::string_view value) {
    return !value.substr(0, value.find(';')).empty();
}

} // namespace tellurix::lines
