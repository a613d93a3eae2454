#include "database/embedded/syntax/Parser.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

Query* Parser::parseQuery() {
    Query* const query = parseTopQuery();
    if (query->assigns) failSyntax("Only a SELECT that stands alone can set variables", query->position);
    return query;
}

/// A query that is a statement, whose items may set variables.
Query* Parser::parseTopQuery() {
    constexpr int levelsOfQuery = 4;
    const Depth depth(*this, levelsOfQuery);
    SelectBranch* const outer = branch_;
    Query* const query = arena_.make<Query>(arena_);
    query->position = peek().position;
    bool unionAll = false;
    do {
        SelectBranch* const branch = parseBranch();
        branch->unionAll = unionAll;
        query->branches.push_back(branch);
        query->assigns = query->assigns || std::ranges::any_of(branch->items, [](const SelectItem& item) {
                             return !item.variable.empty();
                         });
        if (!accept(Keyword::unionKeyword)) break;
        unionAll = accept(Keyword::allKeyword);
    } while (true);
    parseOrderBy(*query);
    branch_ = outer;
    requireAssignments(*query);
    return query;
}

void Parser::requireAssignments(const Query& query) {
    if (!query.assigns) return;
    for (const SelectBranch* const branch : query.branches)
        for (const SelectItem& item : branch->items)
            if (item.variable.empty())
                failSyntax("A SELECT that sets variables cannot answer with columns too", item.position);
    if (query.branches.size() > 1) failSyntax("A UNION cannot set variables", query.branches[1]->position);
}

SelectBranch* Parser::parseBranch() {
    SelectBranch* const branch = arena_.make<SelectBranch>(arena_);
    branch_ = branch;
    branch->position = peek().position;
    expect(Keyword::selectKeyword, "SELECT");
    if (accept(Keyword::distinctKeyword))
        branch->distinct = true;
    else
        accept(Keyword::allKeyword);
    if (accept(Keyword::topKeyword)) {
        if (accept(Symbol::openParenthesis)) {
            branch->top = parseExpression();
            expect(Symbol::closeParenthesis, ")");
        } else {
            if (peek().kind != TokenKind::integer) refuse("a number of rows");
            branch->top = literal(ExpressionKind::integerLiteral);
        }
    }
    do
        branch->items.push_back(parseSelectItem());
    while (accept(Symbol::comma));
    if (accept(Keyword::fromKeyword)) parseFrom(branch->from);
    if (accept(Keyword::whereKeyword)) branch->where = parseExpression();
    if (accept(Keyword::groupKeyword)) {
        expect(Keyword::byKeyword, "BY");
        do
            branch->groupBy.push_back(parseExpression());
        while (accept(Symbol::comma));
    }
    if (accept(Keyword::havingKeyword)) branch->having = parseExpression();
    return branch;
}

SelectItem Parser::parseSelectItem() {
    SelectItem item;
    item.position = peek().position;
    if (accept(Symbol::star)) return item;
    const bool named = peek().kind == TokenKind::name && peek().keyword == Keyword::none;
    if (named && peek(1).symbol == Symbol::point && peek(2).symbol == Symbol::star) {
        item.starQualifier = parseName("a table name");
        take();
        take();
        return item;
    }
    if (peek(1).symbol == Symbol::equal && (named || peek().kind == TokenKind::variable)) {
        // The other way to name a column, and the way to set a variable.
        (named ? item.alias : item.variable) = named ? parseName("an alias") : parseVariable();
        take();
        item.expression = parseExpression();
        return item;
    }
    item.expression = parseExpression();
    item.alias = parseAlias();
    return item;
}

Name Parser::parseAlias() {
    if (accept(Keyword::asKeyword)) {
        if (peek().kind == TokenKind::text) {
            const Token& token = take();
            return {token.text, foldName(token.text, arena_), token.position};
        }
        return parseName("an alias");
    }
    if (peek().kind == TokenKind::name && peek().keyword == Keyword::none) return parseName("an alias");
    return {};
}

void Parser::parseFrom(List<FromItem>& from) {
    from.push_back(parseFromItem(JoinKind::none));
    JoinKind join = JoinKind::none;
    while (acceptJoin(join)) {
        FromItem item = parseFromItem(join);
        if (join == JoinKind::inner || join == JoinKind::left) {
            expect(Keyword::onKeyword, "ON");
            item.on = parseExpression();
        }
        from.push_back(item);
    }
}

bool Parser::acceptJoin(JoinKind& join) {
    if (accept(Symbol::comma)) {
        join = JoinKind::cross;
        return true;
    }
    if (accept(Keyword::joinKeyword)) {
        join = JoinKind::inner;
        return true;
    }
    if (accept(Keyword::innerKeyword)) {
        join = JoinKind::inner;
    } else if (accept(Keyword::leftKeyword)) {
        accept(Keyword::outerKeyword);
        join = JoinKind::left;
    } else if (accept(Keyword::crossKeyword)) {
        join = JoinKind::cross;
    } else {
        if (at(Keyword::rightKeyword) || at(Keyword::fullKeyword))
            failSyntax("RIGHT JOIN and FULL JOIN are not supported", peek().position);
        return false;
    }
    expect(Keyword::joinKeyword, "JOIN");
    return true;
}

FromItem Parser::parseFromItem(JoinKind join) {
    FromItem item;
    item.join = join;
    const std::size_t position = peek().position;
    if (accept(Symbol::openParenthesis)) {
        if (!at(Keyword::selectKeyword)) refuse("SELECT");
        SelectBranch* const outer = branch_;
        item.derived = parseQuery();
        branch_ = outer;
        expect(Symbol::closeParenthesis, ")");
    } else {
        item.table = parseTableName();
    }
    item.alias = parseAlias();
    if (item.derived != nullptr && item.alias.empty()) failSyntax("A query in FROM needs an alias", position);
    if (at(Symbol::openParenthesis) || at(Keyword::withKeyword))
        failSyntax("Column lists and hints after a table are not supported", peek().position);
    return item;
}

void Parser::parseOrderBy(Query& query) {
    if (!accept(Keyword::orderKeyword)) return;
    expect(Keyword::byKeyword, "BY");
    do {
        OrderItem item;
        item.expression = parseExpression();
        if (accept(Keyword::descKeyword))
            item.descending = true;
        else
            accept(Keyword::ascKeyword);
        query.orderBy.push_back(item);
    } while (accept(Symbol::comma));
}

} // namespace tellurix::embedded
