#include "ui/number_box.h"

#include "common/number_format.h"
#include "common/text.h"

namespace tellurix::ui {

void makeNumberBox(TextBox& box, std::string mask, const common::Locale& locale) {
    box.setRightAligned(true);
    box.onKeyPress = [&box, mask, locale](char32_t& key) {
        if (key == U'.' && locale.decimal != '.') key = static_cast<char32_t>(locale.decimal);
        if (!common::fitsNumberMask(box.textAfterTyping(common::encodeUtf8(key)), mask, locale)) key = 0;
    };
    box.onPaste = [locale](const std::string& pasted) {
        // The thousands of a number copied from a list must not be taken for its decimals.
        const auto number = common::parseNumber(pasted, locale);
        if (!number) return pasted;
        return common::replaceAll(number->toString(), ".", std::string{locale.decimal});
    };
    box.onLeave = [&box, mask, locale] {
        box.setText(common::reformatNumber(box.text(), mask, locale));
        return true;
    };
}

void makeDigitBox(TextBox& box) {
    box.onKeyPress = [](char32_t& key) {
        if (key < U'0' || key > U'9') key = 0;
    };
}

} // namespace tellurix::ui
