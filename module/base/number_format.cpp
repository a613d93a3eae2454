#include "module/base/number_format.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace tellurix::base {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// What a mask says, counted.
struct NumberMask {
    bool negative = false;
    bool grouped = false;
    std::size_t wholePlaces = 0;
    std::size_t shownWhole = 0; ///< digits before the decimal character that are always shown
    std::size_t decimalPlaces = 0;
    std::size_t shownDecimals = 0;
};

NumberMask readMask(std::string_view mask) {
    const auto refuse = [mask] {
        throw std::invalid_argument("no number mask: \"" + std::string(mask) + '"');
    };
    NumberMask read;
    auto rest = mask;
    if (rest.starts_with('-')) {
        read.negative = true;
        rest.remove_prefix(1);
    }
    bool inDecimals = false;
    for (const char character : rest) {
        if (character == '.' && !inDecimals) {
            inDecimals = true;
        } else if (character == ',' && !inDecimals) {
            read.grouped = true;
        } else if (character == '0' || character == '#') {
            ++(inDecimals ? read.decimalPlaces : read.wholePlaces);
            // A "#" right of a "0" is shown as well, and so is one left of a decimal "0".
            if (inDecimals && character == '0') read.shownDecimals = read.decimalPlaces;
            if (!inDecimals && (character == '0' || read.shownWhole > 0)) ++read.shownWhole;
        } else {
            refuse();
        }
    }
    if (read.wholePlaces + read.decimalPlaces == 0) refuse();
    return read;
}

std::string withGrouping(std::string digits, char grouping) {
    for (auto place = digits.size(); place > 3;) {
        place -= 3;
        digits.insert(place, 1, grouping);
    }
    return digits;
}

/// Takes apart the digits before the decimal character while they are read from left to right, and
/// knows where a grouping character may stand.
class WholeDigits {
public:
    void digit() {
        ++count_;
        ++inGroup_;
    }
    /// @return false where a group cannot end
    bool endGroup() {
        const bool complete = grouped_ ? inGroup_ == 3 : inGroup_ >= 1 && inGroup_ <= 3;
        grouped_ = true;
        inGroup_ = 0;
        return complete;
    }
    std::size_t count() const { return count_; }
    /// The last group is not longer than it may become.
    bool canGoOn() const { return !grouped_ || inGroup_ <= 3; }
    bool complete() const { return !grouped_ || inGroup_ == 3; }

private:
    std::size_t count_ = 0;
    std::size_t inGroup_ = 0;
    bool grouped_ = false;
};

} // namespace

std::string formatNumber(const Decimal& number, std::string_view mask, const Locale& locale) {
    const auto format = readMask(mask);
    const auto places = static_cast<int>(format.decimalPlaces);
    const auto shown = number.scale() > places ? number.rounded(places) : number;

    auto digits = shown.toString();
    if (shown.units() < 0) digits.erase(0, 1);
    const auto point = std::min(digits.find('.'), digits.size());
    auto whole = digits.substr(0, point);
    auto decimals = point < digits.size() ? digits.substr(point + 1) : std::string();

    whole.erase(0, whole.find_first_not_of('0'));
    if (whole.size() < format.shownWhole) whole.insert(0, format.shownWhole - whole.size(), '0');
    while (decimals.size() > format.shownDecimals && decimals.back() == '0')
        decimals.pop_back();
    if (decimals.size() < format.shownDecimals) decimals.append(format.shownDecimals - decimals.size(), '0');

    std::string text;
    if (shown.units() < 0) text += '-';
    text += format.grouped ? withGrouping(std::move(whole), locale.grouping) : whole;
    if (!decimals.empty()) {
        text += locale.decimal;
        text += decimals;
    }
    return text;
}

std::optional<Decimal> parseNumber(std::string_view text, const Locale& locale) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return std::nullopt;
    text = text.substr(first, text.find_last_not_of(blanks) + 1 - first);

    std::string plain;
    if (text.starts_with('-') || text.starts_with('+')) {
        plain += text.front();
        text.remove_prefix(1);
    }
    WholeDigits whole;
    bool inDecimals = false;
    for (const char character : text) {
        if (isDigit(character)) {
            plain += character;
            if (!inDecimals) whole.digit();
        } else if (character == locale.decimal && !inDecimals) {
            plain += '.';
            inDecimals = true;
        } else if (character != locale.grouping || inDecimals || !whole.endGroup()) {
            return std::nullopt;
        }
    }
    if (!whole.complete()) return std::nullopt;
    return Decimal::parse(plain);
}

std::string reformatNumber(std::string_view text, std::string_view mask, const Locale& locale) {
    const auto number = parseNumber(text, locale);
    return number ? formatNumber(*number, mask, locale) : std::string(text);
}

bool fitsNumberMask(std::string_view text, std::string_view mask, const Locale& locale) {
    const auto format = readMask(mask);
    if (format.negative && text.starts_with('-')) text.remove_prefix(1);

    WholeDigits whole;
    std::size_t decimals = 0;
    bool inDecimals = false;
    for (const char character : text) {
        if (isDigit(character)) {
            if (inDecimals)
                ++decimals;
            else
                whole.digit();
        } else if (character == locale.decimal && !inDecimals && format.decimalPlaces > 0 &&
                   whole.complete()) {
            inDecimals = true;
        } else if (character != locale.grouping || inDecimals || !format.grouped || !whole.endGroup()) {
            return false;
        }
    }
    return whole.canGoOn() && whole.count() <= format.wholePlaces && decimals <= format.decimalPlaces;
}

int longestInMask(std::string_view mask) {
    const auto format = readMask(mask);
    std::size_t characters = format.wholePlaces + format.decimalPlaces;
    if (format.negative) ++characters;
    if (format.grouped && format.wholePlaces > 0) characters += (format.wholePlaces - 1) / 3;
    if (format.decimalPlaces > 0) ++characters;
    return static_cast<int>(characters);
}

} // namespace tellurix::base
