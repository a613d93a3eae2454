#include "module/logistics/quantity_cell.h"

#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/logistics/GuardedQuantities.h"

#include <algorithm>

namespace tellurix::logistics {

namespace {

/// "99.999.998"
constexpr int longestQuantity = 10;

bool isQuantityCharacter(char32_t character) {
    return (character >= U'0' && character <= U'9') || character == U'.';
}

} // namespace

void takeQuantities(ui::TextBox& box) {
    box.setRightAligned(true);
    box.setMaxLength(longestQuantity);
    box.setTakes({base::OwnText::takesQuantity});
    box.onKeyPress = [](char32_t& key) {
        if (!isQuantityCharacter(key)) key = 0;
    };
    box.onPaste = [](const std::string& pasted) {
        // Of "12,5" the filter would leave 125.
        const auto number = base::parseNumber(pasted, base::Locale::german());
        if (!number || *number != number->rounded(0) || *number < base::Decimal{}) return std::string{};
        return number->rounded(0).toString();
    };
}

std::optional<base::Value> quantityIn(std::string_view typed) {
    const std::string_view text = base::trim(typed);
    if (text.empty()) return base::Null{};
    if (!std::ranges::all_of(text, [](char c) { return isQuantityCharacter(static_cast<unsigned char>(c)); }))
        return std::nullopt;
    const auto number = base::parseNumber(text, base::Locale::german());
    if (!number || *number >= base::Decimal{GuardedQuantities::sentinel}) return std::nullopt;
    return *number;
}

} // namespace tellurix::logistics
