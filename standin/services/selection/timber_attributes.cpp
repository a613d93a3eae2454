#include "standin/services/selection/timber_attributes.h"

#include "module/base/StatementText.h"

#include <algorithm>
#include <array>

namespace tellurix::standin {

namespace {

// Strength classes rise with their texts (1a, 1b, 2a …). Quality classes only seem to: between A
// and B there would be AUS, the reject.
constexpr std::array<AttributeKind, 5> kinds{{
    {TimberAttribute::species, "HA", "HOLZART", "HOLZART_GRID", false},
    {TimberAttribute::sort, "HS", "HOLZSORTE", "HOLZSORTE_GRID", false},
    {TimberAttribute::quality, "GKL", "GUETEKLASSE", "GUETEKLASSE_GRID", false},
    {TimberAttribute::strength, "STKL", "STKL", "STKL_GRID", true},
    {TimberAttribute::length, "LANGE", "", "", true},
}};

template <typename Predicate>
const AttributeKind* findKind(const Predicate& matches) {
    const auto found = std::ranges::find_if(kinds, matches);
    return found == kinds.end() ? nullptr : &*found;
}

} // namespace

std::span<const AttributeKind> timberAttributes() {
    return kinds;
}

const AttributeKind& kindOf(TimberAttribute attribute) {
    return *findKind([attribute](const AttributeKind& kind) { return kind.attribute == attribute; });
}

const AttributeKind* findAttribute(std::int64_t number) {
    return findKind(
        [number](const AttributeKind& kind) { return static_cast<int>(kind.attribute) == number; });
}

const AttributeKind* findAttribute(std::string_view listKey) {
    if (listKey.empty()) return nullptr;
    return findKind([listKey](const AttributeKind& kind) { return kind.listKey == listKey; });
}

std::vector<Choice> choicesOf(const host::TlxVar& session, const AttributeKind& kind) {
    std::vector<Choice> choices;
    if (kind.isNumber()) return choices;
    base::StatementText query{"SELECT "};
    query.identifier(kind.column).fixed(" AS CODE,BEZEICHNUNG FROM ").identifier(kind.table);
    query.fixed(" WHERE ISNULL(DISABLE,0)=0 ORDER BY ").identifier(kind.column);
    const auto rows = session.connection->open(query.text());
    for (; !rows->atEnd(); rows->moveNext())
        choices.push_back({rows->text("CODE"), rows->text("BEZEICHNUNG")});
    return choices;
}

} // namespace tellurix::standin
