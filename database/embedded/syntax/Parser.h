#pragma once

#include "database/embedded/syntax/ast.h"
#include "database/embedded/syntax/token.h"

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::embedded {

/// Reads one statement text, which may be a batch, into a syntax tree. One statement ends where
/// the next begins, with or without a semicolon between.
///
/// Whatever the grammar does not hold is refused with a Fault (syntax) that names the place; no
/// part of a text is ever skipped. The tree points into the text and the arena.
class Parser {
public:
    Parser(std::string_view text, Arena& arena);

    /// The whole text; at least one statement.
    Block* parseBatch();
    /// A text that is one expression, such as the default of a column.
    Expression* parseLoneExpression();

private:
    // parser_statements.cpp
    Statement parseStatement();
    Statement parseInsert();
    Statement parseUpdate();
    Statement parseDelete();
    Statement parseIf();
    Statement parseWhile();
    Statement parseBlock();
    void parseDeclare(List<Statement>& statements);
    Statement parseDeclaration();
    Statement parseSet();
    Statement parseSetOption();
    void parseStatementInto(List<Statement>& statements);

    // parser_definitions.cpp
    Statement parseCreate();
    Statement parseCreateTable();
    Statement parseCreateIndex(bool unique);
    Statement parseAlterTable();
    Statement parseDropTable();
    void parseTableBody(TableDefinition& table);
    ColumnDefinition parseColumn();
    void parseColumnRules(ColumnDefinition& column);
    void parseIdentity(ColumnDefinition& column);
    void parseDefault(ColumnDefinition& column);
    KeyDefinition parseKey();
    void skipClustering();

    // parser_queries.cpp
    Query* parseQuery();
    Query* parseTopQuery();
    void requireAssignments(const Query& query);
    SelectBranch* parseBranch();
    SelectItem parseSelectItem();
    void parseFrom(List<FromItem>& from);
    FromItem parseFromItem(JoinKind join);
    bool acceptJoin(JoinKind& join);
    void parseOrderBy(Query& query);
    Name parseAlias();

    // parser_expressions.cpp
    Expression* parseExpression();
    Expression* parseAnd();
    Expression* parseLinks(Keyword word, Operator op, Expression* (Parser::*parseLink)());
    Expression* parseNot();
    Expression* parseComparison();
    Expression* parseAdditive();
    Expression* parseMultiplicative();
    Expression* parseUnary();
    Expression* parsePrimary();
    Expression* parseNameOrCall();
    Expression* parseCall(const Name& function);
    Expression* parseAggregate(const Name& function);
    Expression* parseDatePart(const Name& function);
    Expression* parseCase();
    Expression* parseCast();
    Expression* parseConvert();
    Expression* parseIn(Expression* value, bool negated);
    Expression* parseLike(Expression* value, bool negated);
    Expression* parseBetween(Expression* value, bool negated);
    Expression* literal(ExpressionKind kind);
    void parseArguments(Expression& call);
    Expression* node(ExpressionKind kind, std::size_t position);
    Expression* binary(ExpressionKind kind, Operator op, std::size_t position, Expression* left,
                       Expression* right);

    // parser_names.cpp
    Type parseType(Name& typeName, std::int32_t defaultLength);
    Name parseName(std::string_view what);
    Name parseTableName();
    Name parseVariable();
    std::int64_t parseInteger(std::string_view what);

    const Token& peek(std::size_t ahead = 0) const;
    const Token& take();
    bool at(Keyword keyword) const { return peek().keyword == keyword; }
    bool at(Symbol symbol) const { return peek().symbol == symbol; }
    bool atWord(std::string_view folded) const;
    bool accept(Keyword keyword);
    bool accept(Symbol symbol);
    bool acceptWord(std::string_view folded);
    void expect(Keyword keyword, std::string_view word);
    void expect(Symbol symbol, std::string_view character);
    [[noreturn]] void refuse(std::string_view expected) const;
    /// A deeply nested text must not exhaust the stack.
    class Depth;

    std::string_view text_;
    Arena& arena_;
    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    int depth_ = 0;
    SelectBranch* branch_ = nullptr; ///< the one whose parts are being read
};

/// Counts the nesting of what is being read.
class Parser::Depth {
public:
    /// @param levels how much of the stack the construct takes, an expression in parentheses taking 1
    explicit Depth(Parser& parser, int levels = 1);
    ~Depth() { parser_.depth_ -= levels_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

private:
    Parser& parser_;
    int levels_;
};

} // namespace tellurix::embedded
