#pragma once

#include "database/embedded/syntax/token.h"
#include "database/embedded/values/Arena.h"

#include <string_view>
#include <vector>

namespace tellurix::embedded {

/// Cuts a statement text into tokens, comments and blanks left out; the last one is `end`.
///
/// The tokens point into `statement` or into `arena`, so both have to outlive them.
/// @throws Fault (syntax) for a literal, bracket or comment that does not end and for a character
///         that means nothing
std::vector<Token> tokenize(std::string_view statement, Arena& arena);

} // namespace tellurix::embedded
