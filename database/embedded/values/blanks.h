#pragma once

#include <string_view>

namespace tellurix::embedded {

/// Without the blanks at both ends, which a text may have where it stands for a number or a date.
/// Other white space stays, and makes the text no number and no date.
inline std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

} // namespace tellurix::embedded
