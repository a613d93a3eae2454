#pragma once

#include "module/base/StatementText.h"

#include <optional>
#include <string>

namespace tellurix::standin {

/// The lists that screens ask for by a key instead of a query: the reference tables of the logistics
/// settings, with the keys "WVO_T_BELIEFERUNG_GRID" to choose and "WVO_T_BELIEFERUNG_VALID" to find, and so
/// on.

/// @return what lists the choices, in the order of the table, the text that goes into the box first;
///         nothing when there is no such key
std::optional<std::string> choicesOf(const std::string& key);
/// @param text as it was typed: the long or the short name of a choice
/// @return what finds its ID and LONG; nothing when there is no such key
std::optional<base::StatementText> choiceNamed(const std::string& key, const std::string& text);

} // namespace tellurix::standin
