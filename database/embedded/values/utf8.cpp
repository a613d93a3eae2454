#include "database/embedded/values/utf8.h"

#include "database/embedded/values/language.h"

namespace tellurix::embedded {

namespace {

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Characters of four bytes take two units.
std::size_t unitsOf(char firstByte) {
    return static_cast<unsigned char>(firstByte) >= 0xF0U ? 2 : 1;
}

} // namespace

char32_t nextCharacter(std::string_view text, std::size_t& index) {
    constexpr char32_t broken = 0xFFFD;
    const auto first = static_cast<unsigned char>(text[index++]);
    if (first < 0x80U) return first;
    const std::size_t more = first >= 0xF0U ? 3 : first >= 0xE0U ? 2 : 1;
    if (first < 0xC2U || first > 0xF4U || text.size() - index < more) return broken;
    char32_t character = first & (0x3FU >> more);
    for (std::size_t count = 0; count < more; ++count) {
        if (!isContinuation(text[index])) return broken;
        character = character << 6U | (static_cast<unsigned char>(text[index++]) & 0x3FU);
    }
    return character;
}

char32_t foldCharacter(char32_t character) {
    if (character < 0x80U)
        return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
    return foldLetter(character);
}

void appendCharacter(std::string& text, char32_t character) {
    const auto tail = [&](unsigned shift) {
        text.push_back(static_cast<char>(0x80U | (character >> shift & 0x3FU)));
    };
    if (character < 0x80U) {
        text.push_back(static_cast<char>(character));
    } else if (character < 0x800U) {
        text.push_back(static_cast<char>(0xC0U | character >> 6U));
        tail(0);
    } else if (character < 0x10000U) {
        text.push_back(static_cast<char>(0xE0U | character >> 12U));
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(0xF0U | character >> 18U));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::size_t utf16Length(std::string_view text) {
    std::size_t units = 0;
    for (const char byte : text)
        if (!isContinuation(byte)) units += unitsOf(byte);
    return units;
}

std::string_view utf16Prefix(std::string_view text, std::size_t units) {
    std::size_t used = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (isContinuation(text[index])) continue;
        used += unitsOf(text[index]);
        if (used > units) return text.substr(0, index);
    }
    return text;
}

std::string_view utf16Suffix(std::string_view text, std::size_t units) {
    std::size_t used = 0;
    std::size_t start = text.size();
    for (std::size_t index = text.size(); index > 0; --index) {
        if (isContinuation(text[index - 1])) continue;
        used += unitsOf(text[index - 1]);
        if (used > units) break;
        start = index - 1;
    }
    return text.substr(start);
}

} // namespace tellurix::embedded
