#include "standin/services/texts/words.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::standin {

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    for (text = base::trim(text); !text.empty(); text = base::trim(text)) {
        const auto end = std::min(text.find(' '), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

} // namespace tellurix::standin
