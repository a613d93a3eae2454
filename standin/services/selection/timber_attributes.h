#pragma once

#include "module/host/TlxVar.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// What a selection can restrict, by the numbers that stand in the stored values.
enum class TimberAttribute { species = 83, sort = 87, quality = 90, strength = 93, length = 94 };

struct AttributeKind {
    TimberAttribute attribute;
    std::string_view column;  ///< of LOGS, and of the table that lists the codes
    std::string_view table;   ///< the table that lists the codes; empty for numbers
    std::string_view listKey; ///< under which the screens ask for the list
    bool ordered;             ///< whether "at least" and "at most" mean something

    bool isNumber() const { return table.empty(); }
};

/// All of them, in the order of the stored form.
std::span<const AttributeKind> timberAttributes();
const AttributeKind& kindOf(TimberAttribute attribute);
/// The attribute of that number or list key, or null.
const AttributeKind* findAttribute(std::int64_t number);
const AttributeKind* findAttribute(std::string_view listKey);

/// One code that can be chosen, with its name.
struct Choice {
    std::string code;
    std::string name;
};

/// The codes of an attribute that are not disabled; none for numbers.
std::vector<Choice> choicesOf(const host::TlxVar& session, const AttributeKind& kind);

} // namespace tellurix::standin
