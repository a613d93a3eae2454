#include "database/embedded/syntax/Parser.h"
#include "database/embedded/syntax/lexer.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

#include <array>
#include <charconv>

namespace tellurix::embedded {

namespace {

/// What is nested as deeply as this takes a quarter of a session's stack, checked builds included.
constexpr int deepestNesting = 100;

} // namespace

Parser::Depth::Depth(Parser& parser, int levels) : parser_(parser), levels_(levels) {
    if (parser_.depth_ + levels > deepestNesting)
        failSyntax("The statement is nested too deeply", parser_.peek().position);
    parser_.depth_ += levels;
}

Parser::Parser(std::string_view text, Arena& arena)
    : text_(text), arena_(arena), tokens_(tokenize(text, arena)) {}

const Token& Parser::peek(std::size_t ahead) const {
    const std::size_t index = next_ + ahead;
    return index < tokens_.size() ? tokens_[index] : tokens_.back();
}

const Token& Parser::take() {
    const Token& token = peek();
    if (token.kind != TokenKind::end) ++next_;
    return token;
}

bool Parser::atWord(std::string_view folded) const {
    const Token& token = peek();
    return token.kind == TokenKind::name && foldName(token.text) == folded;
}

bool Parser::accept(Keyword keyword) {
    if (!at(keyword)) return false;
    take();
    return true;
}

bool Parser::accept(Symbol symbol) {
    if (!at(symbol)) return false;
    take();
    return true;
}

bool Parser::acceptWord(std::string_view folded) {
    if (!atWord(folded)) return false;
    take();
    return true;
}

void Parser::expect(Keyword keyword, std::string_view word) {
    if (!accept(keyword)) refuse(word);
}

void Parser::expect(Symbol symbol, std::string_view character) {
    if (!accept(symbol)) refuse(character);
}

void Parser::refuse(std::string_view expected) const {
    const Token& token = peek();
    std::string found = "the end of the text";
    if (token.kind == TokenKind::text)
        found = "the text '" + std::string(token.text) + "'";
    else if (token.kind != TokenKind::end)
        found = "\"" + std::string(text_.substr(token.position, token.length)) + "\"";
    failSyntax("Expected " + std::string(expected) + ", found " + found, token.position);
}

Name Parser::parseName(std::string_view what) {
    const Token& token = peek();
    if (token.kind != TokenKind::name || token.keyword != Keyword::none) refuse(what);
    take();
    return {token.text, foldName(token.text, arena_), token.position};
}

Name Parser::parseTableName() {
    if (peek().kind == TokenKind::variable) return parseVariable();
    Name name = parseName("a table name");
    if (at(Symbol::point)) {
        if (name.folded != "dbo")
            failSyntax("The schema " + std::string(name.written) + " is not supported, only dbo",
                       name.position);
        take();
        name = parseName("a table name");
    }
    return name;
}

Name Parser::parseVariable() {
    const Token& token = peek();
    if (token.kind != TokenKind::variable) refuse("a variable");
    if (token.text.starts_with("@@"))
        failSyntax("The variable " + std::string(token.text) + " is not supported", token.position);
    take();
    return {token.text, foldName(token.text, arena_), token.position};
}

std::int64_t Parser::parseInteger(std::string_view what) {
    const bool negative = accept(Symbol::minus);
    const Token& token = peek();
    std::int64_t value = 0;
    if (token.kind != TokenKind::integer ||
        std::from_chars(token.text.data(), token.text.data() + token.text.size(), value).ec != std::errc{})
        refuse(what);
    take();
    return negative ? -value : value;
}

Type Parser::parseType(Name& typeName, std::int32_t defaultLength) {
    typeName = parseName("a type");
    std::array<std::int32_t, 2> arguments{};
    std::size_t count = 0;
    if (accept(Symbol::openParenthesis)) {
        if (acceptWord("max")) {
            arguments[count++] = Type::unlimited;
        } else {
            do {
                if (count == arguments.size()) refuse(")");
                const std::int64_t value = parseInteger("a number");
                constexpr std::int64_t largestArgument = 100'000;
                arguments[count++] = static_cast<std::int32_t>(std::min(value, largestArgument));
            } while (accept(Symbol::comma));
        }
        expect(Symbol::closeParenthesis, ")");
    }
    const auto type = declaredType(typeName.folded, std::span(arguments.data(), count), defaultLength);
    if (!type) {
        const std::size_t end = peek().position;
        failSyntax("The type " + std::string(text_.substr(typeName.position, end - typeName.position)) +
                       " is not supported",
                   typeName.position);
    }
    return *type;
}

} // namespace tellurix::embedded
