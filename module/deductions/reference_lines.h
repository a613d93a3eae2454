#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace tellurix::deductions {

/// Reference lines as they are kept: without blanks around them and without a comma at the end.
std::string tidyReferences(std::string_view typed);

/// What is doubtful about the lines that a line is computed on: itself, one below it, an empty one, or
/// one that the screen does not have. It can be meant, so it is told and never refused.
/// @param line that refers, from 0
/// @param isComplete whether a line, from 0, has something to be computed on
/// @param language of the session
/// @return one sentence for each, empty when nothing is doubtful
std::string doubtsAbout(std::string_view references, std::size_t line,
                        const std::function<bool(std::size_t)>& isComplete, std::string_view language);

} // namespace tellurix::deductions
