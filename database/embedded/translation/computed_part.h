#pragma once

#include "database/embedded/syntax/ast.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace tellurix::embedded {

/// How many of a batch's first statements compute variables and table variables from nothing but the text
/// itself, and are worth keeping because there is a loop among them: they read no table and no clock. No
/// later statement writes into a table variable, so that what they computed holds for the next run too.
/// @return 0 when there are none
std::size_t computedPart(const Block& batch);

/// The names, folded, of the columns whose equality the batch's queries ask for, of whichever table.
std::vector<std::string_view> comparedColumns(const Block& batch);

} // namespace tellurix::embedded
