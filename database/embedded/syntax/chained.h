#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// Parts of SQLite's SQL joined by a sign for which it does not matter how they are grouped (AND, OR,
/// joining texts), in parentheses when there are several; a word has blanks around it.
///
/// A chain must not nest by its length, neither in the text, where SQLite takes some ninety parentheses,
/// nor in the tree that SQLite makes of it, which a chain without parentheses makes as deep as it is long.
std::string chained(std::span<const std::string> links, std::string_view sign);

} // namespace tellurix::embedded
