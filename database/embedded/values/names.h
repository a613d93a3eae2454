#pragma once

#include "database/embedded/values/Arena.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tellurix::embedded {

/// Names of tables, columns, variables and functions ignore case, umlauts included. A folded name
/// is the form under which names are compared and looked up.
std::string foldName(std::string_view name);

/// The same in the memory of a syntax tree.
std::string_view foldName(std::string_view name, Arena& arena);

/// A map by folded name that is searched without making a string.
struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
};
template <typename Value>
using NameMap = std::unordered_map<std::string, Value, NameHash, std::equal_to<>>;

/// A name as SQLite takes it, whatever characters are in it.
std::string quoteName(std::string_view name);

/// A text literal as SQLite takes it.
std::string quoteText(std::string_view text);

} // namespace tellurix::embedded
