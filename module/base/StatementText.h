#pragma once

#include "module/base/Refused.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tellurix::base {

/// A statement that was refused before it was sent, because a value in it would have changed what
/// the statement does: the place where the server would have reported a syntax error.
class StatementError : public Refused {
public:
    StatementError(OwnText reason, std::string statement, std::string value);

    /// Why the value is refused.
    OwnText reason() const { return reason_; }
    const std::string& statement() const { return statement_; }
    const std::string& value() const { return value_; }

private:
    OwnText reason_;
    std::string statement_;
    std::string value_;
};

/// How the message about a refused value begins: with the value, a long one cut, and with the label of
/// the field that it stands in, where that is known. Empty for no value and no label.
std::vector<Refused::Sentence> refusedValue(std::string_view value, const std::string& label = {});

/// Composes one statement text piece by piece. The fixed text is the program's own; every value
/// enters through a function that says how it is written, and these ways are never unified: which
/// one a statement uses is part of that statement.
///
///     StatementText{"UPDATE VERTRAEGE SET KOPF1 = "}.quotedAsItStands(text).fixed(" WHERE ID_VERTRAG =
///     ").number(id)
///
/// A value that would break out of its place makes `text` throw, so nothing a user can type
/// changes what a statement does.
class StatementText {
public:
    explicit StatementText(std::string_view fixed = {}) : text_(fixed) {}

    /// Text of the program itself.
    StatementText& fixed(std::string_view text);
    template <std::integral Integer>
    requires(!std::same_as<Integer, bool>) StatementText& number(Integer value) {
        return number(std::string_view{std::to_string(value)});
    }
    /// A number as the user typed it; every "," becomes ".". Refused unless the result is a plain
    /// number (`isPlainNumber`), without blanks.
    StatementText& number(std::string_view typed);
    /// A text between single quotes, each quote inside it doubled.
    StatementText& quoted(std::string_view value);
    /// A text between single quotes exactly as it is. Refused when a single quote in it is not
    /// doubled, because that would end the literal.
    StatementText& quotedAsItStands(std::string_view value);
    /// As `quotedAsItStands`, for a value inside a literal that the fixed text opens and closes.
    StatementText& insideLiteral(std::string_view value);
    /// As `insideLiteral`, for a text that is quoted once more inside the literal: no single quote at all.
    StatementText& insideInnerLiteral(std::string_view value);
    /// A table or column name: ASCII letters, digits and "_", no digit first. Anything else is refused.
    StatementText& identifier(std::string_view name);
    StatementText& null() { return fixed("NULL"); }
    /// As `quoted` and `quotedAsItStands`, but an empty text is NULL.
    StatementText& quotedOrNull(std::string_view value) { return value.empty() ? null() : quoted(value); }
    StatementText& quotedAsItStandsOrNull(std::string_view value) {
        return value.empty() ? null() : quotedAsItStands(value);
    }

    /// The finished statement; a value of its own, because a statement is mostly composed in a temporary.
    /// @throws StatementError naming the statement and the first refused value, with a message for the
    /// user that says which value was refused, why, and what to do
    std::string text() const;

private:
    /// Keeps the first refusal; the text is composed on, so that the error can name the whole statement.
    void refuse(std::string_view value, OwnText reason);

    std::string text_;
    std::optional<OwnText> refusal_;
    std::string refusedValue_;
};

} // namespace tellurix::base
