#include "database/odbc/query_text.h"

#include "module/base/text.h"

#include <algorithm>
#include <array>

namespace tellurix::odbc {

namespace {

/// A word, a quoted name, or one other character; a literal is told by its quote alone.
struct Token {
    std::string_view text;
    std::string word;  ///< of a plain word, in capital letters
    std::size_t place; ///< in the text
    int depth;         ///< how many parentheses are open around it
};

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '#' || c == '$' || c == '@' || static_cast<unsigned char>(c) >= 0x80;
}

/// Past a text between quotes or brackets; two closing ones stand for one.
std::size_t endOfQuoted(std::string_view text, std::size_t at, char close) {
    for (++at; at < text.size(); ++at) {
        if (text[at] != close) continue;
        if (at + 1 == text.size() || text[at + 1] != close) return at + 1;
        ++at;
    }
    return at;
}

/// Past a comment between /* and */, in which others may be.
std::size_t endOfComment(std::string_view text, std::size_t at) {
    int depth = 0;
    do {
        const std::string_view two = text.substr(at, 2);
        if (two == "/*") ++depth;
        if (two == "*/") --depth;
        at += two == "/*" || two == "*/" ? 2U : 1U;
    } while (depth > 0 && at < text.size());
    return at;
}

std::vector<Token> tokensOf(std::string_view text) {
    std::vector<Token> tokens;
    int depth = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        const char c = text[at];
        std::string word;
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            ++at;
            continue;
        }
        if (text.substr(at, 2) == "--") {
            at = std::min(text.find('\n', at), text.size());
            continue;
        }
        if (text.substr(at, 2) == "/*") {
            at = endOfComment(text, at);
            continue;
        }
        if (c == '\'' || c == '"') {
            at = endOfQuoted(text, at, c);
        } else if (c == '[') {
            at = endOfQuoted(text, at, ']');
        } else if (isLetter(c)) {
            while (at < text.size() && isLetter(text[at]))
                ++at;
            word = base::toUpper(text.substr(start, at - start));
        } else {
            ++at;
        }
        if (c == ')') --depth;
        tokens.push_back({text.substr(start, at - start), std::move(word), start, depth});
        if (c == '(') ++depth;
    }
    return tokens;
}

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::ranges::find(words, word) != words.end();
}

std::string unquoted(std::string_view name) {
    if (name.size() < 2 || (name.front() != '[' && name.front() != '"')) return std::string{name};
    const std::string close(1, name.back());
    return base::replaceAll(std::string{name.substr(1, name.size() - 2)}, close + close, close);
}

bool isName(const Token& token) {
    return !token.word.empty() || token.text.front() == '[' || token.text.front() == '"';
}

bool isPlain(const std::vector<Token>& tokens) {
    if (tokens.empty() || tokens.front().word != "SELECT") return false;
    for (std::size_t index = 1; index < tokens.size(); ++index) {
        const Token& token = tokens[index];
        if (token.text == ";" && index + 1 < tokens.size()) return false;
        if (token.word.empty()) continue;
        // Another query behind the first one, unless both make one answer.
        if (token.word == "SELECT" && token.depth == 0 &&
            !isOneOf(tokens[index - 1].word, {"UNION", "ALL", "EXCEPT", "INTERSECT"}))
            return false;
        if (token.word.front() == '@' ||
            isOneOf(token.word, {"INTO",   "INSERT",  "UPDATE", "DELETE",    "MERGE",  "EXEC",     "EXECUTE",
                                 "SET",    "DECLARE", "CREATE", "ALTER",     "DROP",   "TRUNCATE", "IF",
                                 "WHILE",  "BEGIN",   "PRINT",  "RAISERROR", "THROW",  "WAITFOR",  "RETURN",
                                 "USE",    "GRANT",   "REVOKE", "DENY",      "COMMIT", "ROLLBACK", "SAVE",
                                 "BACKUP", "RESTORE", "KILL",   "CALL",      "DO",     "LOCK",     "GOTO"}))
            return false;
    }
    return true;
}

} // namespace

bool isPlainQuery(std::string_view text) {
    return isPlain(tokensOf(text));
}

std::optional<EditedQuery> EditedQuery::read(std::string_view text) {
    const std::vector<Token> tokens = tokensOf(text);
    if (!isPlain(tokens)) return {};
    const auto isOuter = [](const Token& token, std::initializer_list<std::string_view> words) {
        return token.depth == 0 && isOneOf(token.word, words);
    };
    const auto from =
        std::ranges::find_if(tokens, [&](const Token& token) { return isOuter(token, {"FROM"}); });
    const auto tablesEnd = std::find_if(from, tokens.end(), [&](const Token& token) {
        return isOuter(token, {"WHERE", "ORDER"});
    });
    const bool several = std::any_of(from, tablesEnd, [](const Token& token) { return token.text == ","; });
    const bool joined = std::ranges::any_of(tokens, [&](const Token& token) {
        return isOuter(token, {"JOIN", "APPLY", "UNION", "EXCEPT", "INTERSECT", "GROUP", "DISTINCT"});
    });
    if (several || joined || tablesEnd - from < 2 || !isName(from[1])) return {};
    EditedQuery query;
    query.endOfList = from->place;
    auto token = from + 1;
    query.table = token->text;
    while (tablesEnd - token > 2 && token[1].text == "." && isName(token[2])) {
        query.schema = unquoted(token->text);
        token += 2;
        query.table += "." + std::string{token->text};
    }
    query.name = unquoted(token->text);
    query.quoted = token->word.empty();
    return query;
}

} // namespace tellurix::odbc
