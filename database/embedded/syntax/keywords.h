#pragma once

#include "database/embedded/syntax/token.h"

#include <string_view>

namespace tellurix::embedded {

/// The keyword that a word is, in any case of its letters; `none` for every other word.
Keyword keywordOf(std::string_view word);

} // namespace tellurix::embedded
