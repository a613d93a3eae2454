#pragma once

#include "database/embedded/syntax/ast.h"

#include <cstddef>

namespace tellurix::embedded {

/// @throws Fault (syntax) when a function is called with another number of arguments
void requireArguments(const Expression& call, std::size_t fewest, std::size_t most);

} // namespace tellurix::embedded
