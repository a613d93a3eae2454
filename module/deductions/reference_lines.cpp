#include "module/deductions/reference_lines.h"

#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/base/whole_number.h"
#include "module/host/CalculationForm.h"

#include <algorithm>
#include <optional>

namespace tellurix::deductions {

using base::OwnText;

namespace {

/// @param referred from 1, as the user reads it; nothing for a number that is none of a line
std::optional<OwnText> doubtAbout(std::optional<std::size_t> referred, std::size_t line,
                                  const std::function<bool(std::size_t)>& isComplete) {
    if (!referred || *referred == 0 || *referred > host::calculationLineCount) return OwnText::refersToNone;
    if (*referred == line + 1) return OwnText::refersToItself;
    if (*referred > line + 1) return OwnText::refersToLater;
    if (!isComplete(*referred - 1)) return OwnText::refersToEmpty;
    return std::nullopt;
}

} // namespace

std::string tidyReferences(std::string_view typed) {
    std::string_view references = base::trim(typed);
    if (references.ends_with(',')) references.remove_suffix(1);
    return std::string{references};
}

std::string doubtsAbout(std::string_view references, std::size_t line,
                        const std::function<bool(std::size_t)>& isComplete, std::string_view language) {
    std::string doubts;
    while (!references.empty()) {
        const std::size_t end = std::min(references.find(','), references.size());
        const std::string number{base::trim(references.substr(0, end))};
        references.remove_prefix(std::min(end + 1, references.size()));
        if (number.empty()) continue;
        if (const auto doubt = doubtAbout(base::wholeNumber<std::size_t>(number), line, isComplete))
            doubts += (doubts.empty() ? "" : " ") + base::ownText(*doubt, language, {number});
    }
    return doubts;
}

} // namespace tellurix::deductions
