#include "module/base/text.h"

#include <cstddef>

namespace tellurix::base {

std::u32string decodeUtf8(std::string_view text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        std::size_t length = 1;
        if (lead >= 0xF0) {
            length = 4;
        } else if (lead >= 0xE0) {
            length = 3;
        } else if (lead >= 0xC0) {
            length = 2;
        }
        char32_t character = length == 1 ? lead : lead & (0x7Fu >> length);
        bool valid = i + length <= text.size() && (length > 1 || lead < 0x80);
        for (std::size_t k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            valid = (next & 0xC0) == 0x80;
            character = (character << 6) | (next & 0x3Fu);
        }
        characters.push_back(valid ? character : U'\uFFFD');
        i += valid ? length : 1;
    }
    return characters;
}

std::string encodeUtf8(char32_t character) {
    std::string text;
    const auto put = [&text](char32_t byte) {
        text.push_back(static_cast<char>(static_cast<unsigned char>(byte)));
    };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | (character >> 18));
        put(0x80 | ((character >> 12) & 0x3F));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
    return text;
}

std::string encodeUtf8(std::u32string_view characters) {
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters)
        text += encodeUtf8(character);
    return text;
}

char32_t toUpper(char32_t character) {
    if (character >= U'a' && character <= U'z') return character - 32;
    if (character >= 0xE0 && character <= 0xFE && character != 0xF7) return character - 32;
    if (character == 0xFF) return 0x178;
    // Latin Extended-A pairs an even capital with the odd small letter after it, in two ranges.
    const bool evenCapitals =
        (character >= 0x100 && character <= 0x137) || (character >= 0x14A && character <= 0x177);
    if (evenCapitals && character != 0x131) return character & ~char32_t{1};
    const bool oddCapitals =
        (character >= 0x139 && character <= 0x148) || (character >= 0x179 && character <= 0x17E);
    if (oddCapitals && character % 2 == 0) return character - 1;
    return character;
}

std::string toUpper(std::string_view text) {
    std::u32string characters = decodeUtf8(text);
    for (char32_t& character : characters)
        character = toUpper(character);
    return encodeUtf8(characters);
}

std::string_view trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view withoutByteOrderMark(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

std::string replaceAll(std::string text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string joined(const std::vector<std::string>& texts, std::string_view between) {
    std::string all;
    for (const std::string& text : texts)
        all.append(&text == &texts.front() ? std::string_view{} : between).append(text);
    return all;
}

std::string filled(std::string text, const std::vector<std::string>& values) {
    std::size_t from = 0;
    for (const std::string& value : values) {
        const auto at = text.find("{}", from);
        if (at == std::string::npos) break;
        text.replace(at, 2, value);
        from = at + value.size();
    }
    return text;
}

} // namespace tellurix::base
