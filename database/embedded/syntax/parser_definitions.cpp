#include "database/embedded/syntax/Parser.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/names.h"

namespace tellurix::embedded {

Statement Parser::parseCreate() {
    take();
    if (accept(Keyword::tableKeyword)) return parseCreateTable();
    const bool unique = accept(Keyword::uniqueKeyword);
    skipClustering();
    if (accept(Keyword::indexKeyword)) return parseCreateIndex(unique);
    refuse("TABLE or INDEX");
}

/// Says how the server lays the rows out, which changes no result.
void Parser::skipClustering() {
    if (!accept(Keyword::clusteredKeyword)) accept(Keyword::nonclusteredKeyword);
}

Statement Parser::parseCreateTable() {
    auto* const table = arena_.make<TableDefinition>(arena_);
    table->table = parseTableName();
    if (table->table.written.starts_with('@'))
        failSyntax("A table variable is declared, not created", table->table.position);
    parseTableBody(*table);
    return table;
}

void Parser::parseTableBody(TableDefinition& table) {
    expect(Symbol::openParenthesis, "(");
    do {
        if (at(Keyword::constraintKeyword) || at(Keyword::primaryKeyword) || at(Keyword::uniqueKeyword))
            table.keys.push_back(parseKey());
        else if (at(Keyword::foreignKeyword) || at(Keyword::checkKeyword))
            failSyntax("FOREIGN KEY and CHECK are not supported", peek().position);
        else
            table.columns.push_back(parseColumn());
    } while (accept(Symbol::comma));
    expect(Symbol::closeParenthesis, ")");
    if (table.columns.empty())
        failSyntax("The table " + std::string(table.table.written) + " has no columns", table.table.position);
}

ColumnDefinition Parser::parseColumn() {
    ColumnDefinition column;
    column.name = parseName("a column name");
    column.type = parseType(column.typeName, 1);
    parseColumnRules(column);
    return column;
}

void Parser::parseColumnRules(ColumnDefinition& column) {
    for (;;) {
        if (accept(Keyword::constraintKeyword)) parseName("the name of a constraint");
        if (accept(Keyword::nullKeyword)) {
            column.nullable = true;
        } else if (accept(Keyword::notKeyword)) {
            expect(Keyword::nullKeyword, "NULL");
            column.nullable = false;
        } else if (accept(Keyword::primaryKeyword)) {
            expect(Keyword::keyKeyword, "KEY");
            skipClustering();
            column.primaryKey = true;
            column.nullable = false;
        } else if (accept(Keyword::uniqueKeyword)) {
            skipClustering();
            column.unique = true;
        } else if (at(Keyword::identityKeyword)) {
            parseIdentity(column);
        } else if (at(Keyword::defaultKeyword)) {
            parseDefault(column);
        } else if (at(Keyword::referencesKeyword) || at(Keyword::foreignKeyword) ||
                   at(Keyword::checkKeyword)) {
            failSyntax("REFERENCES, FOREIGN KEY and CHECK are not supported", peek().position);
        } else {
            return;
        }
    }
}

void Parser::parseIdentity(ColumnDefinition& column) {
    const std::size_t position = take().position;
    column.identity = true;
    column.nullable = false;
    if (accept(Symbol::openParenthesis)) {
        column.seed = parseInteger("the first key");
        expect(Symbol::comma, ",");
        if (parseInteger("the step between keys") != 1)
            failSyntax("IDENTITY with a step other than 1 is not supported", position);
        expect(Symbol::closeParenthesis, ")");
    }
    if (column.type.kind != TypeKind::integer) failSyntax("An IDENTITY column has to be an int", position);
}

void Parser::parseDefault(ColumnDefinition& column) {
    take();
    const std::size_t start = peek().position;
    column.defaultValue = parseAdditive();
    const Token& last = tokens_[next_ - 1];
    column.defaultText = text_.substr(start, last.position + last.length - start);
}

KeyDefinition Parser::parseKey() {
    if (accept(Keyword::constraintKeyword)) parseName("the name of a constraint");
    KeyDefinition key(arena_);
    if (accept(Keyword::primaryKeyword)) {
        expect(Keyword::keyKeyword, "KEY");
        key.primary = true;
    } else if (!accept(Keyword::uniqueKeyword)) {
        refuse("PRIMARY KEY or UNIQUE");
    }
    skipClustering();
    expect(Symbol::openParenthesis, "(");
    do {
        key.columns.push_back(parseName("a column name"));
        if (!accept(Keyword::ascKeyword)) accept(Keyword::descKeyword);
    } while (accept(Symbol::comma));
    expect(Symbol::closeParenthesis, ")");
    return key;
}

Statement Parser::parseCreateIndex(bool unique) {
    auto* const index = arena_.make<CreateIndexStatement>(arena_);
    index->unique = unique;
    index->index = parseName("the name of an index");
    expect(Keyword::onKeyword, "ON");
    index->table = parseTableName();
    expect(Symbol::openParenthesis, "(");
    do {
        IndexedColumn column;
        column.name = parseName("a column name");
        if (accept(Keyword::descKeyword))
            column.descending = true;
        else
            accept(Keyword::ascKeyword);
        index->columns.push_back(column);
    } while (accept(Symbol::comma));
    expect(Symbol::closeParenthesis, ")");
    return index;
}

/// A table gets new columns, and nothing else about it changes. Its rows hold NULL there.
Statement Parser::parseAlterTable() {
    take();
    expect(Keyword::tableKeyword, "TABLE");
    auto* const alter = arena_.make<AddColumnsStatement>(arena_);
    alter->table = parseTableName();
    expect(Keyword::addKeyword, "ADD");
    do {
        alter->columns.push_back(parseColumn());
        const ColumnDefinition& column = alter->columns.back();
        if (!column.nullable || column.unique || column.defaultValue != nullptr)
            failSyntax("A column that is added later takes NULL and has no key and no default",
                       column.name.position);
    } while (accept(Symbol::comma));
    return alter;
}

Statement Parser::parseDropTable() {
    take();
    expect(Keyword::tableKeyword, "TABLE");
    auto* const drop = arena_.make<DropTableStatement>();
    if (accept(Keyword::ifKeyword)) {
        expect(Keyword::existsKeyword, "EXISTS");
        drop->ifExists = true;
    }
    drop->table = parseTableName();
    return drop;
}

} // namespace tellurix::embedded
