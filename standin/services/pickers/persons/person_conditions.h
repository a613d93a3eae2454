#pragma once

#include "module/base/StatementText.h"

#include <string>
#include <string_view>

namespace tellurix::standin {

/// Who may be chosen: not a disabled person, and only one without an access level or with this one.
/// Goes behind WHERE, with a blank in front.
base::StatementText& allowedPersons(base::StatementText& query, int accessLevel);

/// The part of it that depends on the user: " AND …" on a table or alias of that name.
std::string restrictionOfLevel(const std::string& table, int accessLevel);

/// The column of PERSONAL that marks the persons a picker mode offers; empty for the empty mode,
/// which an unknown contract type gives and which offers everybody.
/// @throws std::invalid_argument for a mode that is none
std::string columnOfMode(std::string_view mode);

/// A pattern for LIKE, in its quotes, that finds the word anywhere in a text.
std::string patternAnywhere(std::string_view word);
/// The same for a text that starts with the word.
std::string patternAtStart(std::string_view word);

} // namespace tellurix::standin
