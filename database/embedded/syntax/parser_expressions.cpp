#include "database/embedded/syntax/Parser.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

namespace tellurix::embedded {

namespace {

Operator comparisonOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::equal:
        return Operator::equal;
    case Symbol::notEqual:
        return Operator::notEqual;
    case Symbol::less:
        return Operator::less;
    case Symbol::lessOrEqual:
        return Operator::lessOrEqual;
    case Symbol::greater:
        return Operator::greater;
    case Symbol::greaterOrEqual:
        return Operator::greaterOrEqual;
    default:
        return Operator::none;
    }
}

bool isAggregate(std::string_view folded) {
    return folded == "count" || folded == "sum" || folded == "min" || folded == "max" || folded == "avg";
}

bool takesDatePart(std::string_view folded) {
    return folded == "datepart" || folded == "dateadd" || folded == "datediff" || folded == "datename";
}

constexpr std::int32_t castLength = 30;

} // namespace

Expression* Parser::node(ExpressionKind kind, std::size_t position) {
    return arena_.make<Expression>(arena_, kind, position);
}

Expression* Parser::binary(ExpressionKind kind, Operator op, std::size_t position, Expression* left,
                           Expression* right) {
    Expression* const result = node(kind, position);
    result->op = op;
    result->operands = {{left, right}, arena_.memory()};
    return result;
}

Expression* Parser::parseLoneExpression() {
    Expression* const expression = parseExpression();
    if (peek().kind != TokenKind::end) refuse("the end of the text");
    return expression;
}

Expression* Parser::parseExpression() {
    const Depth depth(*this);
    return parseLinks(Keyword::orKeyword, Operator::logicalOr, &Parser::parseAnd);
}

Expression* Parser::parseAnd() {
    return parseLinks(Keyword::andKeyword, Operator::logicalAnd, &Parser::parseNot);
}

Expression* Parser::parseLinks(Keyword word, Operator op, Expression* (Parser::*parseLink)()) {
    Expression* const first = (this->*parseLink)();
    if (!at(word)) return first;
    Expression* const chain = node(ExpressionKind::logical, peek().position);
    chain->op = op;
    chain->operands.push_back(first);
    while (accept(word))
        chain->operands.push_back((this->*parseLink)());
    return chain;
}

Expression* Parser::parseNot() {
    if (!at(Keyword::notKeyword)) return parseComparison();
    const Depth depth(*this);
    Expression* const result = node(ExpressionKind::logicalNot, take().position);
    result->operands.push_back(parseNot());
    return result;
}

Expression* Parser::parseComparison() {
    if (at(Keyword::existsKeyword)) {
        Expression* const result = node(ExpressionKind::exists, take().position);
        expect(Symbol::openParenthesis, "(");
        result->query = parseQuery();
        expect(Symbol::closeParenthesis, ")");
        return result;
    }
    Expression* const left = parseAdditive();
    const std::size_t position = peek().position;
    const Operator op = comparisonOf(peek().symbol);
    if (op != Operator::none) {
        take();
        return binary(ExpressionKind::comparison, op, position, left, parseAdditive());
    }
    if (accept(Keyword::isKeyword)) {
        Expression* const result = node(ExpressionKind::isNull, position);
        result->negated = accept(Keyword::notKeyword);
        expect(Keyword::nullKeyword, "NULL");
        result->operands.push_back(left);
        return result;
    }
    const bool negated = accept(Keyword::notKeyword);
    if (accept(Keyword::inKeyword)) return parseIn(left, negated);
    if (accept(Keyword::likeKeyword)) return parseLike(left, negated);
    if (accept(Keyword::betweenKeyword)) return parseBetween(left, negated);
    if (negated) refuse("IN, LIKE or BETWEEN");
    return left;
}

Expression* Parser::parseIn(Expression* value, bool negated) {
    expect(Symbol::openParenthesis, "(");
    const bool query = at(Keyword::selectKeyword);
    Expression* const result =
        node(query ? ExpressionKind::inQuery : ExpressionKind::inList, value->position);
    result->negated = negated;
    result->operands.push_back(value);
    if (query) {
        result->query = parseQuery();
    } else {
        do
            result->operands.push_back(parseExpression());
        while (accept(Symbol::comma));
    }
    expect(Symbol::closeParenthesis, ")");
    return result;
}

Expression* Parser::parseLike(Expression* value, bool negated) {
    Expression* const result = node(ExpressionKind::like, value->position);
    result->negated = negated;
    result->operands.push_back(value);
    result->operands.push_back(parseAdditive());
    if (accept(Keyword::escapeKeyword)) result->operands.push_back(parseAdditive());
    return result;
}

Expression* Parser::parseBetween(Expression* value, bool negated) {
    Expression* const result = node(ExpressionKind::between, value->position);
    result->negated = negated;
    result->operands.push_back(value);
    result->operands.push_back(parseAdditive());
    expect(Keyword::andKeyword, "AND");
    result->operands.push_back(parseAdditive());
    return result;
}

Expression* Parser::parseAdditive() {
    Expression* left = parseMultiplicative();
    while (at(Symbol::plus) || at(Symbol::minus)) {
        const Operator op = at(Symbol::plus) ? Operator::add : Operator::subtract;
        const std::size_t position = take().position;
        left = binary(ExpressionKind::arithmetic, op, position, left, parseMultiplicative());
    }
    return left;
}

Expression* Parser::parseMultiplicative() {
    Expression* left = parseUnary();
    while (at(Symbol::star) || at(Symbol::slash) || at(Symbol::percent)) {
        const Operator op = at(Symbol::star)    ? Operator::multiply
                            : at(Symbol::slash) ? Operator::divide
                                                : Operator::modulo;
        const std::size_t position = take().position;
        left = binary(ExpressionKind::arithmetic, op, position, left, parseUnary());
    }
    return left;
}

Expression* Parser::parseUnary() {
    if (accept(Symbol::plus)) {
        const Depth depth(*this);
        return parseUnary();
    }
    if (!at(Symbol::minus)) return parsePrimary();
    const Depth depth(*this);
    Expression* const result = node(ExpressionKind::negate, take().position);
    result->operands.push_back(parseUnary());
    return result;
}

Expression* Parser::literal(ExpressionKind kind) {
    const Token& token = take();
    Expression* const result = node(kind, token.position);
    result->name.written = token.text;
    return result;
}

Expression* Parser::parsePrimary() {
    const Token& token = peek();
    switch (token.kind) {
    case TokenKind::integer:
        return literal(ExpressionKind::integerLiteral);
    case TokenKind::decimal:
        return literal(ExpressionKind::decimalLiteral);
    case TokenKind::floating:
        return literal(ExpressionKind::floatLiteral);
    case TokenKind::text:
        return literal(ExpressionKind::textLiteral);
    case TokenKind::variable: {
        Expression* const result = node(ExpressionKind::variable, token.position);
        result->name = parseVariable();
        return result;
    }
    default:
        break;
    }
    if (accept(Symbol::openParenthesis)) {
        Expression* result = nullptr;
        if (at(Keyword::selectKeyword)) {
            result = node(ExpressionKind::subquery, token.position);
            result->query = parseQuery();
        } else {
            result = parseExpression();
        }
        expect(Symbol::closeParenthesis, ")");
        return result;
    }
    switch (token.keyword) {
    case Keyword::nullKeyword:
        return literal(ExpressionKind::nullLiteral);
    case Keyword::caseKeyword:
        return parseCase();
    case Keyword::convertKeyword:
        return parseConvert();
    case Keyword::coalesceKeyword:
    case Keyword::nullifKeyword:
    case Keyword::leftKeyword:
    case Keyword::rightKeyword: {
        take();
        return parseCall({token.text, foldName(token.text, arena_), token.position});
    }
    default:
        break;
    }
    if (token.kind != TokenKind::name || token.keyword != Keyword::none) refuse("a value");
    return parseNameOrCall();
}

Expression* Parser::parseNameOrCall() {
    const Name first = parseName("a name");
    if (at(Symbol::openParenthesis)) {
        if (first.folded == "cast") return parseCast();
        return parseCall(first);
    }
    Expression* const column = node(ExpressionKind::column, first.position);
    column->name = first;
    while (accept(Symbol::point)) {
        if (!column->qualifier.empty() && column->qualifier.folded != "dbo")
            failSyntax("The name " + std::string(column->qualifier.written) + "." +
                           std::string(column->name.written) + " has too many parts",
                       first.position);
        column->qualifier = column->name;
        column->name = parseName("a column name");
    }
    return column;
}

Expression* Parser::parseCall(const Name& function) {
    const Depth depth(*this);
    expect(Symbol::openParenthesis, "(");
    if (isAggregate(function.folded)) return parseAggregate(function);
    if (takesDatePart(function.folded)) return parseDatePart(function);
    Expression* const call = node(ExpressionKind::function, function.position);
    call->name = function;
    if (!at(Symbol::closeParenthesis)) parseArguments(*call);
    expect(Symbol::closeParenthesis, ")");
    return call;
}

void Parser::parseArguments(Expression& call) {
    do
        call.operands.push_back(parseExpression());
    while (accept(Symbol::comma));
}

Expression* Parser::parseAggregate(const Name& function) {
    Expression* const call = node(ExpressionKind::aggregate, function.position);
    call->name = function;
    if (branch_ == nullptr)
        failSyntax("The aggregate " + std::string(function.written) + " stands outside a query",
                   function.position);
    branch_->aggregates = true;
    if (accept(Symbol::star)) {
        if (function.folded != "count") failSyntax("Only COUNT counts rows with *", function.position);
    } else {
        call->distinct = accept(Keyword::distinctKeyword);
        call->operands.push_back(parseExpression());
    }
    expect(Symbol::closeParenthesis, ")");
    return call;
}

Expression* Parser::parseDatePart(const Name& function) {
    Expression* const call = node(ExpressionKind::datePart, function.position);
    call->name = function;
    call->part = parseName("a part of a date");
    while (accept(Symbol::comma))
        call->operands.push_back(parseExpression());
    expect(Symbol::closeParenthesis, ")");
    return call;
}

Expression* Parser::parseCase() {
    const Depth depth(*this);
    const std::size_t position = take().position;
    const bool simple = !at(Keyword::whenKeyword);
    Expression* const result = node(simple ? ExpressionKind::simpleCase : ExpressionKind::caseWhen, position);
    if (simple) result->operands.push_back(parseExpression());
    if (!at(Keyword::whenKeyword)) refuse("WHEN");
    while (accept(Keyword::whenKeyword)) {
        result->operands.push_back(parseExpression());
        expect(Keyword::thenKeyword, "THEN");
        result->operands.push_back(parseExpression());
    }
    if (accept(Keyword::elseKeyword)) {
        result->hasElse = true;
        result->operands.push_back(parseExpression());
    }
    expect(Keyword::endKeyword, "END");
    return result;
}

Expression* Parser::parseCast() {
    const Depth depth(*this);
    const std::size_t position = peek().position;
    expect(Symbol::openParenthesis, "(");
    Expression* const result = node(ExpressionKind::cast, position);
    result->operands.push_back(parseExpression());
    expect(Keyword::asKeyword, "AS");
    result->type = parseType(result->name, castLength);
    expect(Symbol::closeParenthesis, ")");
    return result;
}

Expression* Parser::parseConvert() {
    const Depth depth(*this);
    Expression* const result = node(ExpressionKind::cast, take().position);
    expect(Symbol::openParenthesis, "(");
    result->type = parseType(result->name, castLength);
    expect(Symbol::comma, ",");
    parseArguments(*result);
    if (result->operands.size() > 2)
        failSyntax("CONVERT takes a type, a value and a style", result->position);
    expect(Symbol::closeParenthesis, ")");
    return result;
}

} // namespace tellurix::embedded
