#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tellurix::embedded {

/// The words that steer the grammar. All of them are reserved in T-SQL too, so none can be the
/// name of a table or column without brackets.
enum class Keyword : std::uint8_t {
    none,
    addKeyword,
    allKeyword,
    alterKeyword,
    andKeyword,
    asKeyword,
    ascKeyword,
    beginKeyword,
    betweenKeyword,
    byKeyword,
    caseKeyword,
    checkKeyword,
    clusteredKeyword,
    coalesceKeyword,
    constraintKeyword,
    convertKeyword,
    createKeyword,
    crossKeyword,
    declareKeyword,
    defaultKeyword,
    deleteKeyword,
    descKeyword,
    distinctKeyword,
    dropKeyword,
    elseKeyword,
    endKeyword,
    escapeKeyword,
    existsKeyword,
    foreignKeyword,
    fromKeyword,
    fullKeyword,
    groupKeyword,
    havingKeyword,
    identityKeyword,
    ifKeyword,
    inKeyword,
    indexKeyword,
    innerKeyword,
    insertKeyword,
    intoKeyword,
    isKeyword,
    joinKeyword,
    keyKeyword,
    leftKeyword,
    likeKeyword,
    nonclusteredKeyword,
    notKeyword,
    nullKeyword,
    nullifKeyword,
    onKeyword,
    orKeyword,
    orderKeyword,
    outerKeyword,
    primaryKeyword,
    referencesKeyword,
    rightKeyword,
    selectKeyword,
    setKeyword,
    tableKeyword,
    thenKeyword,
    topKeyword,
    unionKeyword,
    uniqueKeyword,
    updateKeyword,
    valuesKeyword,
    whenKeyword,
    whereKeyword,
    whileKeyword,
    withKeyword,
    /// Reserved in T-SQL and never the start of anything that this engine does.
    unsupported
};

enum class TokenKind : std::uint8_t {
    end,
    name,     ///< `text` as written, without its brackets
    variable, ///< `text` as written, with its @
    integer,  ///< digits alone
    decimal,  ///< digits with a point
    floating, ///< digits with an exponent
    text,     ///< `text` without its quotes, doubled quotes made single
    symbol
};

enum class Symbol : std::uint8_t {
    none,
    openParenthesis,
    closeParenthesis,
    comma,
    point,
    semicolon,
    plus,
    minus,
    star,
    slash,
    percent,
    equal,
    notEqual,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual
};

struct Token {
    TokenKind kind = TokenKind::end;
    Keyword keyword = Keyword::none; ///< of a name that was not bracketed
    Symbol symbol = Symbol::none;
    bool doubledQuotes = false; ///< text: quotes were made single, so `text` is shorter than its source
    std::size_t position = 0;   ///< byte offset of its first character in the statement text
    std::size_t length = 0;     ///< of its source
    std::string_view text;
};

} // namespace tellurix::embedded
