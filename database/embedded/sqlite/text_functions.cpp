#include "database/embedded/sqlite/scalar_call.h"
#include "database/embedded/values/Collation.h"
#include "database/embedded/values/language.h"
#include "database/embedded/values/like_pattern.h"
#include "database/embedded/values/utf8.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

/// Text, pattern, perhaps position and escape character.
void like(ScalarCall& call) {
    char32_t escape = 0;
    if (call.count() > 2) {
        const std::string_view text = call.text(2);
        std::size_t index = 0;
        escape = text.empty() ? 0 : foldCharacter(nextCharacter(text, index));
        if (text.empty() || index != text.size())
            failConversion("ESCAPE takes one character, not '" + excerpt(text) + "'", call.position(3));
    }
    call.answer(std::int64_t{matchesLike(call.text(0), call.text(1), escape, call.session().collation)});
}

std::size_t unitCount(const ScalarCall& call, int argument, int positionArgument) {
    if (call.integer(argument) < 0) failConversion("A length below zero", call.position(positionArgument));
    return static_cast<std::size_t>(call.integer(argument));
}

/// Text, length, position.
void right(ScalarCall& call) {
    call.answer(utf16Suffix(call.text(0), unitCount(call, 1, 2)));
}

void left(ScalarCall& call) {
    call.answer(utf16Prefix(call.text(0), unitCount(call, 1, 2)));
}

/// Text, first character from 1, length, position.
void substring(ScalarCall& call) {
    const std::string_view text = call.text(0);
    // The characters before the first one count for the length, though there are none.
    const std::int64_t end = call.integer(1) + static_cast<std::int64_t>(unitCount(call, 2, 3));
    const std::int64_t first = std::max<std::int64_t>(1, call.integer(1));
    const std::int64_t length = std::max<std::int64_t>(0, end - first);
    const std::string_view before = utf16Prefix(text, static_cast<std::size_t>(first - 1));
    call.answer(utf16Prefix(text.substr(before.size()), static_cast<std::size_t>(length)));
}

/// Blanks at the end do not count.
void length(ScalarCall& call) {
    std::string_view text = call.text(0);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    call.answer(static_cast<std::int64_t>(utf16Length(text)));
}

/// Where a text is found again, letter by letter and in any case. An empty one is found nowhere.
std::size_t findFolded(std::string_view text, std::string_view wanted, std::size_t from, std::size_t& end) {
    if (wanted.empty()) return std::string_view::npos;
    while (from < text.size()) {
        std::size_t inText = from;
        std::size_t inWanted = 0;
        while (inText < text.size() && inWanted < wanted.size()) {
            if (foldCharacter(nextCharacter(text, inText)) !=
                foldCharacter(nextCharacter(wanted, inWanted))) {
                inWanted = 0;
                break;
            }
        }
        if (inWanted == wanted.size()) {
            end = inText;
            return from;
        }
        nextCharacter(text, from);
    }
    return std::string_view::npos;
}

std::int64_t placeOf(std::string_view text, std::size_t index) {
    return static_cast<std::int64_t>(utf16Length(text.substr(0, index))) + 1;
}

/// Wanted text, text, first place to look at.
void charIndex(ScalarCall& call) {
    const std::string_view text = call.text(1);
    const auto before = static_cast<std::size_t>(std::max<std::int64_t>(call.integer(2), 1) - 1);
    std::size_t end = 0;
    const std::size_t found = findFolded(text, call.text(0), utf16Prefix(text, before).size(), end);
    call.answer(found == std::string_view::npos ? std::int64_t{0} : placeOf(text, found));
}

/// Pattern, text: the place of the first match, which begins where the pattern's % in front ends.
void patIndex(ScalarCall& call) {
    std::string_view pattern = call.text(0);
    const std::string_view text = call.text(1);
    const Collation& collation = call.session().collation;
    if (!pattern.starts_with('%')) return call.answer(std::int64_t{matchesLike(text, pattern, 0, collation)});
    while (pattern.starts_with('%'))
        pattern.remove_prefix(1);
    for (std::size_t index = 0;; nextCharacter(text, index)) {
        if (pattern.empty() || matchesLike(text.substr(index), pattern, 0, collation))
            return call.answer(placeOf(text, pattern.empty() ? 0 : index));
        if (index >= text.size()) return call.answer(std::int64_t{0});
    }
}

/// Text, wanted text, what takes its place.
void replace(ScalarCall& call) {
    const std::string_view text = call.text(0);
    std::string replaced;
    std::size_t from = 0;
    std::size_t end = 0;
    for (std::size_t found = 0; (found = findFolded(text, call.text(1), from, end)) != std::string_view::npos;
         from = end)
        replaced.append(text.substr(from, found - from)).append(call.text(2));
    call.answer(std::string_view(replaced.append(text.substr(from))));
}

template <std::string (*change)(std::string_view)>
void changeCase(ScalarCall& call) {
    call.answer(std::string_view(change(call.text(0))));
}

} // namespace

void registerTextFunctions(sqlite3* connection, SqlSession& session) {
    registerScalar<like, 2>(connection, "ts_like", 2, session);
    registerScalar<like, 3>(connection, "ts_like", 4, session);
    registerScalar<right, 2>(connection, "ts_right", 3, session);
    registerScalar<left, 2>(connection, "ts_left", 3, session);
    registerScalar<substring, 3>(connection, "ts_substring", 4, session);
    registerScalar<charIndex, 3>(connection, "ts_charindex", 3, session);
    registerScalar<patIndex, 2>(connection, "ts_patindex", 2, session);
    registerScalar<replace, 3>(connection, "ts_replace", 3, session);
    registerScalar<length, 1>(connection, "ts_len", 1, session);
    registerScalar<changeCase<upperCase>, 1>(connection, "ts_upper", 1, session);
    registerScalar<changeCase<lowerCase>, 1>(connection, "ts_lower", 1, session);
}

} // namespace tellurix::embedded
