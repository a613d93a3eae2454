#include "database/odbc/wide.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::odbc {

namespace {

constexpr char32_t firstBeyondThePlane = 0x10000;
constexpr char32_t highStart = 0xD800;
constexpr char32_t lowStart = 0xDC00;
constexpr char32_t lowEnd = 0xE000;
constexpr unsigned bitsOfHalf = 10;
constexpr char32_t maskOfHalf = 0x3FF;

bool isAscii(char32_t character) {
    return character < 0x80;
}

} // namespace

std::u16string wide(std::string_view text) {
    if (std::ranges::all_of(text, [](unsigned char byte) { return isAscii(byte); }))
        return {text.begin(), text.end()};
    std::u16string result;
    result.reserve(text.size());
    for (const char32_t character : base::decodeUtf8(text)) {
        if (character < firstBeyondThePlane) {
            result += static_cast<char16_t>(character);
        } else {
            const char32_t rest = character - firstBeyondThePlane;
            result += static_cast<char16_t>(highStart + (rest >> bitsOfHalf));
            result += static_cast<char16_t>(lowStart + (rest & maskOfHalf));
        }
    }
    return result;
}

std::string narrow(std::u16string_view text) {
    std::u32string characters;
    if (std::ranges::all_of(text, [](char16_t unit) { return isAscii(unit); }))
        return {text.begin(), text.end()};
    characters.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char32_t unit = text[index];
        const bool pair = unit >= highStart && unit < lowStart && index + 1 < text.size() &&
                          text[index + 1] >= lowStart && text[index + 1] < lowEnd;
        characters +=
            pair ? firstBeyondThePlane + ((unit - highStart) << bitsOfHalf) + (text[++index] - lowStart)
                 : unit;
    }
    return base::encodeUtf8(characters);
}

} // namespace tellurix::odbc
