#include "database/embedded/syntax/keywords.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace tellurix::embedded {

namespace {

using KeywordTable = std::unordered_map<std::string_view, Keyword>;

constexpr std::size_t longestKeyword = 17;

const KeywordTable& keywordTable() {
    static const KeywordTable table{
        {"add", Keyword::addKeyword},
        {"all", Keyword::allKeyword},
        {"alter", Keyword::alterKeyword},
        {"and", Keyword::andKeyword},
        {"as", Keyword::asKeyword},
        {"asc", Keyword::ascKeyword},
        {"begin", Keyword::beginKeyword},
        {"between", Keyword::betweenKeyword},
        {"by", Keyword::byKeyword},
        {"case", Keyword::caseKeyword},
        {"check", Keyword::checkKeyword},
        {"clustered", Keyword::clusteredKeyword},
        {"coalesce", Keyword::coalesceKeyword},
        {"constraint", Keyword::constraintKeyword},
        {"convert", Keyword::convertKeyword},
        {"create", Keyword::createKeyword},
        {"cross", Keyword::crossKeyword},
        {"declare", Keyword::declareKeyword},
        {"default", Keyword::defaultKeyword},
        {"delete", Keyword::deleteKeyword},
        {"desc", Keyword::descKeyword},
        {"distinct", Keyword::distinctKeyword},
        {"drop", Keyword::dropKeyword},
        {"else", Keyword::elseKeyword},
        {"end", Keyword::endKeyword},
        {"escape", Keyword::escapeKeyword},
        {"exists", Keyword::existsKeyword},
        {"foreign", Keyword::foreignKeyword},
        {"from", Keyword::fromKeyword},
        {"full", Keyword::fullKeyword},
        {"group", Keyword::groupKeyword},
        {"having", Keyword::havingKeyword},
        {"identity", Keyword::identityKeyword},
        {"if", Keyword::ifKeyword},
        {"in", Keyword::inKeyword},
        {"index", Keyword::indexKeyword},
        {"inner", Keyword::innerKeyword},
        {"insert", Keyword::insertKeyword},
        {"into", Keyword::intoKeyword},
        {"is", Keyword::isKeyword},
        {"join", Keyword::joinKeyword},
        {"key", Keyword::keyKeyword},
        {"left", Keyword::leftKeyword},
        {"like", Keyword::likeKeyword},
        {"nonclustered", Keyword::nonclusteredKeyword},
        {"not", Keyword::notKeyword},
        {"null", Keyword::nullKeyword},
        {"nullif", Keyword::nullifKeyword},
        {"on", Keyword::onKeyword},
        {"or", Keyword::orKeyword},
        {"order", Keyword::orderKeyword},
        {"outer", Keyword::outerKeyword},
        {"primary", Keyword::primaryKeyword},
        {"references", Keyword::referencesKeyword},
        {"right", Keyword::rightKeyword},
        {"select", Keyword::selectKeyword},
        {"set", Keyword::setKeyword},
        {"table", Keyword::tableKeyword},
        {"then", Keyword::thenKeyword},
        {"top", Keyword::topKeyword},
        {"union", Keyword::unionKeyword},
        {"unique", Keyword::uniqueKeyword},
        {"update", Keyword::updateKeyword},
        {"values", Keyword::valuesKeyword},
        {"when", Keyword::whenKeyword},
        {"where", Keyword::whereKeyword},
        {"while", Keyword::whileKeyword},
        {"with", Keyword::withKeyword},
        // Were they names, a misplaced one would be taken for an alias and the rest of its clause
        // for something else.
        {"any", Keyword::unsupported},
        {"backup", Keyword::unsupported},
        {"break", Keyword::unsupported},
        {"commit", Keyword::unsupported},
        {"continue", Keyword::unsupported},
        {"cursor", Keyword::unsupported},
        {"except", Keyword::unsupported},
        {"exec", Keyword::unsupported},
        {"execute", Keyword::unsupported},
        {"fetch", Keyword::unsupported},
        {"for", Keyword::unsupported},
        {"goto", Keyword::unsupported},
        {"grant", Keyword::unsupported},
        {"holdlock", Keyword::unsupported},
        {"intersect", Keyword::unsupported},
        {"merge", Keyword::unsupported},
        {"of", Keyword::unsupported},
        {"off", Keyword::unsupported},
        {"open", Keyword::unsupported},
        {"option", Keyword::unsupported},
        {"over", Keyword::unsupported},
        {"pivot", Keyword::unsupported},
        {"print", Keyword::unsupported},
        {"procedure", Keyword::unsupported},
        {"raiserror", Keyword::unsupported},
        {"return", Keyword::unsupported},
        {"revoke", Keyword::unsupported},
        {"rollback", Keyword::unsupported},
        {"save", Keyword::unsupported},
        {"some", Keyword::unsupported},
        {"to", Keyword::unsupported},
        {"tran", Keyword::unsupported},
        {"transaction", Keyword::unsupported},
        {"trigger", Keyword::unsupported},
        {"truncate", Keyword::unsupported},
        {"unpivot", Keyword::unsupported},
        {"use", Keyword::unsupported},
        {"view", Keyword::unsupported},
        {"waitfor", Keyword::unsupported},
    };
    return table;
}

/// The lengths that keywords of one first letter have, as bits: most names end here.
using LengthTable = std::array<std::uint32_t, 256>;

LengthTable lengthsByFirstLetter() {
    LengthTable lengths{};
    for (const auto& [word, keyword] : keywordTable()) {
        const auto lower = static_cast<unsigned char>(word.front());
        lengths[lower] |= 1U << word.size();
        lengths[lower - ('a' - 'A')] |= 1U << word.size();
    }
    return lengths;
}

} // namespace

Keyword keywordOf(std::string_view word) {
    static const LengthTable lengths = lengthsByFirstLetter();
    if (word.size() > longestKeyword ||
        (lengths[static_cast<unsigned char>(word.front())] >> word.size() & 1U) == 0)
        return Keyword::none;
    std::array<char, longestKeyword> lower{};
    std::transform(word.begin(), word.end(), lower.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
    });
    const auto found = keywordTable().find(std::string_view(lower.data(), word.size()));
    return found == keywordTable().end() ? Keyword::none : found->second;
}

} // namespace tellurix::embedded
