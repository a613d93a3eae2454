#include "standin/services/pickers/lists/named_lists.h"

#include <array>
#include <string_view>

namespace tellurix::standin {

namespace {

constexpr std::array<std::string_view, 3> tables = {"WVO_T_BELIEFERUNG", "WVO_T_LIEFERPARITAT",
                                                    "WVO_T_BEREITSELLUNGS"};

std::optional<std::string> tableOf(const std::string& key, std::string_view ending) {
    for (const std::string_view table : tables) {
        if (key == std::string{table}.append(ending)) return std::string{table};
    }
    return {};
}

} // namespace

std::optional<std::string> choicesOf(const std::string& key) {
    const auto table = tableOf(key, "_GRID");
    if (!table) return {};
    return "SELECT LONG, SHORT AS KURZ FROM " + *table + " ORDER BY ID";
}

std::optional<base::StatementText> choiceNamed(const std::string& key, const std::string& text) {
    const auto table = tableOf(key, "_VALID");
    if (!table) return {};
    base::StatementText query{"SELECT ID, LONG FROM "};
    query.identifier(*table).fixed(" WHERE LONG = ").quoted(text).fixed(" OR SHORT = ").quoted(text);
    return query.fixed(" ORDER BY ID");
}

} // namespace tellurix::standin
