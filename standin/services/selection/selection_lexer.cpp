#include "standin/services/selection/selection_lexer.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

using Kind = SelectionToken::Kind;

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view numberCharacters = "0123456789.+-";
constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";

bool isOneOf(char character, std::string_view set) {
    return set.find(character) != std::string_view::npos;
}

/// The end of the run of characters of a set that starts at `at`.
std::size_t runEnd(std::string_view value, std::size_t at, std::string_view set) {
    return std::min(value.find_first_not_of(set, at), value.size());
}

SelectionToken quotedText(std::string_view value, std::size_t start, std::size_t& at) {
    SelectionToken token{Kind::text, {}, start};
    for (at = start + 1; at < value.size(); ++at) {
        if (value[at] != '\'') {
            token.value += value[at];
        } else if (value.substr(at + 1, 1) == "'") {
            token.value += value[at++];
        } else {
            ++at;
            return token;
        }
    }
    token.kind = Kind::broken;
    return token;
}

SelectionToken nextToken(std::string_view value, std::size_t& at) {
    const std::size_t start = at;
    if (value[at] == '\'') return quotedText(value, start, at);
    if (isOneOf(value[at], numberCharacters)) {
        at = runEnd(value, at, numberCharacters);
        return {Kind::number, std::string{value.substr(start, at - start)}, start};
    }
    if (isOneOf(value[at], letters)) {
        at = runEnd(value, at, letters);
        return {Kind::word, base::toUpper(value.substr(start, at - start)), start};
    }
    const std::string_view pair = value.substr(at, 2);
    const bool comparison = pair == ">=" || pair == "<=";
    const std::string_view symbol = comparison ? pair : value.substr(at, 1);
    at += symbol.size();
    const bool known = comparison || isOneOf(symbol.front(), "(),;");
    return {known ? Kind::symbol : Kind::broken, std::string{symbol}, start};
}

} // namespace

std::vector<SelectionToken> selectionTokens(std::string_view value) {
    std::vector<SelectionToken> tokens;
    std::size_t at = runEnd(value, 0, blanks);
    while (at < value.size()) {
        tokens.push_back(nextToken(value, at));
        at = runEnd(value, at, blanks);
    }
    tokens.push_back({Kind::end, {}, value.size()});
    return tokens;
}

} // namespace tellurix::standin
