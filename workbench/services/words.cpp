#include "services/words.h"

#include "common/text.h"

#include <algorithm>

namespace tellurix::workbench {

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    for (text = common::trim(text); !text.empty(); text = common::trim(text)) {
        const auto end = std::min(text.find(' '), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

} // namespace tellurix::workbench
