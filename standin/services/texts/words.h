#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// The words of a search text, without the blanks between them.
std::vector<std::string> wordsOf(std::string_view text);

} // namespace tellurix::standin
