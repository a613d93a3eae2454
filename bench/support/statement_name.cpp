#include "bench/support/statement_name.h"

#include "module/base/text.h"

#include <utility>
#include <vector>

namespace tellurix::bench {

namespace {

constexpr std::string_view blanks = " \r\n\t";

/// The words outside of parentheses and quotes; what stands inside is another statement's or a value.
std::vector<std::string> outerWords(std::string_view statement) {
    std::vector<std::string> words;
    std::string word;
    int depth = 0;
    bool quoted = false;
    for (const char c : statement) {
        if (c == '\'') quoted = !quoted;
        if (!quoted && c == '(') ++depth;
        if (!quoted && c == ')') --depth;
        const bool outside = !quoted && depth == 0 && c != '\'' && c != ')';
        if (outside && blanks.find(c) == std::string_view::npos) {
            word += c;
        } else if (outside && !word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    if (!word.empty()) words.push_back(std::move(word));
    return words;
}

} // namespace

std::string statementName(std::string_view statement) {
    const std::vector<std::string> words = outerWords(statement);
    if (words.empty()) return "(empty)";
    // "[update] COLUMN of SELECT …" is how a row that is edited in place is traced.
    const bool inPlace = words[0].starts_with('[');
    const std::string verb = base::toUpper(inPlace ? words[0].substr(1, words[0].size() - 2) : words[0]);
    std::string table;
    for (std::size_t i = 0; i + 1 < words.size() && table.empty(); ++i) {
        const std::string word = base::toUpper(words[i]);
        if (word == "FROM" || word == "INTO" || word == "UPDATE") table = " " + words[i + 1];
    }
    return verb + table + (inPlace ? " (in place)" : "");
}

} // namespace tellurix::bench
