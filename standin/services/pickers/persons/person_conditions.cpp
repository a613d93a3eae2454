#include "standin/services/pickers/persons/person_conditions.h"

#include <stdexcept>

namespace tellurix::standin {

namespace {

/// The word with the characters that mean something in a pattern standing for themselves.
std::string escaped(std::string_view word) {
    std::string pattern;
    for (const char character : word) {
        const bool special = character == '%' || character == '_' || character == '[';
        pattern += special ? std::string{'['} + character + ']' : std::string{character};
    }
    return pattern;
}

std::string quoted(const std::string& pattern) {
    return base::StatementText{}.quoted(pattern).text();
}

} // namespace

base::StatementText& allowedPersons(base::StatementText& query, int accessLevel) {
    return query.fixed(" ISNULL(DISABLE,0) = 0 AND ISNULL(ID_ACCESS_LEVELS,0) IN (0,")
        .number(accessLevel)
        .fixed(")");
}

std::string restrictionOfLevel(const std::string& table, int accessLevel) {
    return base::StatementText{" AND ISNULL("}
        .identifier(table)
        .fixed(".ID_ACCESS_LEVELS,0) IN (0,")
        .number(accessLevel)
        .fixed(")")
        .text();
}

std::string columnOfMode(std::string_view mode) {
    if (mode.empty()) return {};
    if (mode == "2PVM") return "MANDANT";
    if (mode == "2PVAP") return "LIEFERADRESSE";
    if (mode == "2PVK") return "KUNDE";
    // "2PVA2" names two things, the customers of type A2 and the forest helpers. Both are the persons
    // of ABRECH2, because an A2 contract is the one that is made with a forest helper.
    constexpr std::string_view settled = "2PVA";
    if (mode.size() == settled.size() + 1 && mode.starts_with(settled) && mode.back() >= '1' &&
        mode.back() <= '8') {
        return std::string{"ABRECH"} + mode.back();
    }
    throw std::invalid_argument("Die Personenauswahl kennt die Art „" + std::string{mode} + "“ nicht.");
}

std::string patternAnywhere(std::string_view word) {
    return quoted("%" + escaped(word) + "%");
}

std::string patternAtStart(std::string_view word) {
    return quoted(escaped(word) + "%");
}

} // namespace tellurix::standin
