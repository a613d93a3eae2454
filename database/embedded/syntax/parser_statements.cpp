#include "database/embedded/syntax/Parser.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

namespace tellurix::embedded {

Block* Parser::parseBatch() {
    Block* const batch = arena_.make<Block>(arena_);
    while (accept(Symbol::semicolon)) {
    }
    if (peek().kind == TokenKind::end) failSyntax("The text holds no statement", 0);
    while (peek().kind != TokenKind::end)
        parseStatementInto(batch->statements);
    return batch;
}

void Parser::parseStatementInto(List<Statement>& statements) {
    if (at(Keyword::declareKeyword))
        parseDeclare(statements);
    else
        statements.push_back(parseStatement());
    while (accept(Symbol::semicolon)) {
    }
}

Statement Parser::parseStatement() {
    const Depth depth(*this);
    const Token& token = peek();
    switch (token.keyword) {
    case Keyword::selectKeyword: {
        auto* const select = arena_.make<SelectStatement>();
        select->query = parseTopQuery();
        return select;
    }
    case Keyword::insertKeyword:
        return parseInsert();
    case Keyword::updateKeyword:
        return parseUpdate();
    case Keyword::deleteKeyword:
        return parseDelete();
    case Keyword::setKeyword:
        return parseSet();
    case Keyword::ifKeyword:
        return parseIf();
    case Keyword::whileKeyword:
        return parseWhile();
    case Keyword::beginKeyword:
        return parseBlock();
    case Keyword::createKeyword:
        return parseCreate();
    case Keyword::alterKeyword:
        return parseAlterTable();
    case Keyword::dropKeyword:
        return parseDropTable();
    case Keyword::unsupported:
        failSyntax("The statement " + std::string(token.text) + " is not supported", token.position);
    default:
        refuse("a statement");
    }
}

Statement Parser::parseInsert() {
    take();
    accept(Keyword::intoKeyword);
    auto* const insert = arena_.make<InsertStatement>(arena_);
    insert->table = parseTableName();
    if (accept(Symbol::openParenthesis)) {
        do
            insert->columns.push_back(parseName("a column name"));
        while (accept(Symbol::comma));
        expect(Symbol::closeParenthesis, ")");
    }
    if (at(Keyword::selectKeyword)) {
        insert->query = parseQuery();
        return insert;
    }
    expect(Keyword::valuesKeyword, "VALUES or SELECT");
    do {
        List<Expression*> row(arena_.memory());
        expect(Symbol::openParenthesis, "(");
        do
            row.push_back(parseExpression());
        while (accept(Symbol::comma));
        expect(Symbol::closeParenthesis, ")");
        insert->rows.push_back(std::move(row));
    } while (accept(Symbol::comma));
    return insert;
}

Statement Parser::parseUpdate() {
    take();
    auto* const update = arena_.make<UpdateStatement>(arena_);
    update->target = parseTableName();
    expect(Keyword::setKeyword, "SET");
    do {
        Assignment assignment;
        assignment.column = parseName("a column name");
        while (accept(Symbol::point)) {
            const Name qualifier = assignment.column;
            if (qualifier.folded != update->target.folded && qualifier.folded != "dbo")
                failSyntax(std::string(qualifier.written) + " is not the table that is updated",
                           qualifier.position);
            assignment.column = parseName("a column name");
        }
        expect(Symbol::equal, "=");
        assignment.value = parseExpression();
        update->assignments.push_back(assignment);
    } while (accept(Symbol::comma));
    if (accept(Keyword::fromKeyword)) parseFrom(update->from);
    if (accept(Keyword::whereKeyword)) update->where = parseExpression();
    return update;
}

Statement Parser::parseDelete() {
    take();
    accept(Keyword::fromKeyword);
    auto* const deletion = arena_.make<DeleteStatement>();
    deletion->table = parseTableName();
    if (at(Keyword::fromKeyword)) failSyntax("DELETE with a second FROM is not supported", peek().position);
    if (accept(Keyword::whereKeyword)) deletion->where = parseExpression();
    return deletion;
}

Statement Parser::parseIf() {
    take();
    auto* const statement = arena_.make<IfStatement>();
    statement->condition = parseExpression();
    statement->then = parseStatement();
    // A semicolon ends the branch, not the whole IF, when ELSE follows it.
    if (at(Symbol::semicolon) && peek(1).keyword == Keyword::elseKeyword) take();
    if (accept(Keyword::elseKeyword)) {
        statement->hasElse = true;
        statement->otherwise = parseStatement();
    }
    return statement;
}

Statement Parser::parseWhile() {
    take();
    auto* const statement = arena_.make<WhileStatement>();
    statement->condition = parseExpression();
    statement->body = parseStatement();
    return statement;
}

Statement Parser::parseBlock() {
    const Token& begin = take();
    auto* const block = arena_.make<Block>(arena_);
    if (at(Keyword::unsupported))
        failSyntax("BEGIN " + std::string(peek().text) + " is not supported", begin.position);
    while (!accept(Keyword::endKeyword)) {
        if (peek().kind == TokenKind::end) refuse("END");
        parseStatementInto(block->statements);
    }
    return block;
}

void Parser::parseDeclare(List<Statement>& statements) {
    take();
    do
        statements.push_back(parseDeclaration());
    while (accept(Symbol::comma));
}

Statement Parser::parseDeclaration() {
    const Name name = parseVariable();
    accept(Keyword::asKeyword);
    if (accept(Keyword::tableKeyword)) {
        auto* const table = arena_.make<TableDefinition>(arena_);
        table->table = name;
        parseTableBody(*table);
        return table;
    }
    auto* const variable = arena_.make<DeclareVariable>();
    variable->name = name;
    Name typeName;
    variable->type = parseType(typeName, 1);
    if (accept(Symbol::equal)) variable->value = parseExpression();
    return variable;
}

Statement Parser::parseSet() {
    take();
    if (peek().kind != TokenKind::variable) return parseSetOption();
    auto* const set = arena_.make<SetVariable>();
    set->name = parseVariable();
    expect(Symbol::equal, "=");
    set->value = parseExpression();
    return set;
}

Statement Parser::parseSetOption() {
    const Name name = parseName("an option");
    auto* const set = arena_.make<SetOption>();
    if (name.folded == "datefirst") {
        set->option = Option::dateFirst;
        const std::size_t position = peek().position;
        const std::int64_t number = parseInteger("a day of the week from 1 to 7");
        if (number < 1 || number > 7) failSyntax("DATEFIRST is a day of the week from 1 to 7", position);
        set->number = static_cast<int>(number);
        return set;
    }
    if (name.folded == "dateformat") {
        set->option = Option::dateFormat;
        set->name = parseName("an order of day, month and year");
        return set;
    }
    if (name.folded == "nocount") {
        set->option = Option::noCount;
    } else if (name.folded == "identity_insert") {
        set->option = Option::identityInsert;
        set->name = parseTableName();
    } else {
        failSyntax("The option " + std::string(name.written) + " is not supported", name.position);
    }
    set->on = at(Keyword::onKeyword);
    if (!set->on && !atWord("off")) refuse("ON or OFF");
    take();
    return set;
}

} // namespace tellurix::embedded
