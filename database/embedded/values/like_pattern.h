#pragma once

#include <string_view>

namespace tellurix::embedded {

class Collation;

/// T-SQL's LIKE: % any characters, _ one character, [abc], [a-f] and [^a] one character of a set.
/// Case is ignored, umlauts included; accents and blanks at the end count.
/// @param escape the character that makes the next one ordinary, or 0
bool matchesLike(std::string_view text, std::string_view pattern, char32_t escape,
                 const Collation& collation);

} // namespace tellurix::embedded
