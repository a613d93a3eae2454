#include "module/ui/input/number_box.h"

#include "module/base/number_format.h"
#include "module/base/text.h"

#include <utility>

namespace tellurix::ui {

namespace {

/// The largest number that a mask can show, as it is typed.
std::string largestInMask(const std::string& mask, const base::Locale& locale) {
    std::string largest;
    for (const char place : mask) {
        if (place == '#' || place == '0') largest += '9';
        if (place == '.') largest += locale.decimal;
    }
    return largest;
}

/// Decides about the characters typed into a number box.
class NumberKeys {
public:
    NumberKeys(TextBox& box, std::string mask, const base::Locale& locale)
        : box_(box), mask_(std::move(mask)), locale_(locale) {}

    void operator()(char32_t& key) {
        const bool point = key == U'.' && locale_.decimal != '.';
        if (point) key = static_cast<char32_t>(locale_.decimal);
        const bool behindPoint = !withPoint_.empty() && box_.text() == withPoint_;
        const std::string typed = box_.textAfterTyping(base::encodeUtf8(key));
        if (fits(typed)) {
            withPoint_ = point || behindPoint ? typed : std::string{};
        } else if (!behindPoint || !takePointOut(typed)) {
            key = 0;
        }
    }

private:
    bool fits(const std::string& text) const { return base::fitsNumberMask(text, mask_, locale_); }

    /// With its third digit a point turns out to have been one between thousands: "1.234".
    bool takePointOut(const std::string& typed) {
        const std::size_t groupBegin = typed.find(locale_.decimal) + 1;
        if (typed.size() - groupBegin != 3 || !typed.starts_with(withPoint_)) return false;
        const std::string whole = base::replaceAll(withPoint_, std::string{locale_.decimal}, "");
        if (!fits(whole + typed.back())) return false;
        box_.setText(whole);
        return true;
    }

    TextBox& box_;
    std::string mask_;
    base::Locale locale_;
    std::string withPoint_; ///< the text since a point was typed as its decimal character
};

} // namespace

void takeNumbers(TextBox& box, const std::string& mask, const base::Locale& locale) {
    box.setMaxLength(base::longestInMask(mask));
    box.setTakes({base::OwnText::takesNumber, {largestInMask(mask, locale)}});
    box.onKeyPress = NumberKeys{box, mask, locale};
    box.onPaste = [locale](const std::string& pasted) {
        // The thousands of a number copied from a list must not be taken for its decimals.
        const auto number = base::parseNumber(pasted, locale);
        if (!number) return pasted;
        return base::replaceAll(number->toString(), ".", std::string{locale.decimal});
    };
}

void makeNumberBox(TextBox& box, std::string mask, const base::Locale& locale) {
    box.setRightAligned(true);
    takeNumbers(box, mask, locale);
    box.onLeave = [&box, mask = std::move(mask), locale] {
        box.setText(base::reformatNumber(box.text(), mask, locale));
        return true;
    };
}

void makeDigitBox(TextBox& box) {
    constexpr int mostDigits = 18;
    box.setMaxLength(mostDigits);
    box.setTakes({base::OwnText::takesDigits});
    box.onKeyPress = [](char32_t& key) {
        if (key < U'0' || key > U'9') key = 0;
    };
}

} // namespace tellurix::ui
