#include "database/embedded/values/names.h"

#include "database/embedded/values/utf8.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

char lowerAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

bool isAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(),
                        [](char character) { return static_cast<unsigned char>(character) >= 0x80; });
}

std::string foldUnicode(std::string_view name) {
    std::string folded;
    folded.reserve(name.size());
    for (std::size_t index = 0; index < name.size();)
        appendCharacter(folded, foldCharacter(nextCharacter(name, index)));
    return folded;
}

std::string quoteWith(std::string_view text, char quote) {
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted.push_back(quote);
    for (const char character : text) {
        if (character == quote) quoted.push_back(quote);
        quoted.push_back(character);
    }
    quoted.push_back(quote);
    return quoted;
}

} // namespace

std::string foldName(std::string_view name) {
    if (!isAscii(name)) return foldUnicode(name);
    std::string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), lowerAscii);
    return folded;
}

std::string_view foldName(std::string_view name, Arena& arena) {
    if (!isAscii(name)) return arena.keep(foldUnicode(name));
    char* room = arena.textRoom(name.size());
    std::transform(name.begin(), name.end(), room, lowerAscii);
    return {room, name.size()};
}

std::string quoteName(std::string_view name) {
    return quoteWith(name, '"');
}

std::string quoteText(std::string_view text) {
    return quoteWith(text, '\'');
}

} // namespace tellurix::embedded
