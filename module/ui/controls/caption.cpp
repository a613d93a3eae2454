#include "module/ui/controls/caption.h"

#include "module/base/text.h"

namespace tellurix::ui {

char32_t accessKeyOf(std::string_view caption) {
    const std::u32string characters = base::decodeUtf8(caption);
    for (std::size_t i = 0; i + 1 < characters.size(); ++i) {
        if (characters[i] != U'&') continue;
        if (characters[i + 1] != U'&') return base::toUpper(characters[i + 1]);
        ++i;
    }
    return 0;
}

std::string plainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    return plain;
}

} // namespace tellurix::ui
