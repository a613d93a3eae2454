#pragma once

#include "database/embedded/values/Arena.h"
#include "database/embedded/values/types.h"

#include <cstddef>
#include <string_view>
#include <variant>

namespace tellurix::embedded {

/// The syntax tree of one statement text. Nodes live in an `Arena`; names are kept as written and
/// folded (see names.h), positions are byte offsets in the text.

struct Query;

struct Name {
    std::string_view written;
    std::string_view folded;
    std::size_t position = 0;

    bool empty() const { return folded.empty(); }
};

enum class ExpressionKind : std::uint8_t {
    nullLiteral,
    integerLiteral, ///< name.written: the digits
    decimalLiteral,
    floatLiteral,
    textLiteral, ///< name.written: the text
    column,      ///< qualifier.name
    variable,    ///< name
    negate,      ///< operands: the value
    arithmetic,  ///< op, operands: left, right; a chain is deep on its left side
    comparison,  ///< op, operands: left, right
    logical,     ///< op and/or, operands: all links of the chain
    logicalNot,  ///< operands: the condition
    isNull,      ///< operands: the value; negated
    inList,      ///< operands: the value, then the list; negated
    inQuery,     ///< operands: the value; query; negated
    exists,      ///< query
    like,        ///< operands: the value, the pattern, perhaps the escape character; negated
    between,     ///< operands: the value, the bounds; negated
    caseWhen,    ///< operands: condition, value, condition, value, …; perhaps a last value (else)
    simpleCase,  ///< operands: the value, then value, result, …; perhaps a last result (else)
    cast,        ///< type, operands: the value; style: operands[1]
    function,    ///< name, operands
    aggregate,   ///< name, operands (none for COUNT(*)); distinct
    datePart,    ///< name: function; part: first argument; operands: the other arguments
    subquery     ///< query
};

enum class Operator : std::uint8_t {
    none,
    add,
    subtract,
    multiply,
    divide,
    modulo,
    equal,
    notEqual,
    less,
    lessOrEqual,
    greater,
    greaterOrEqual,
    logicalAnd,
    logicalOr
};

struct Expression {
    Expression(Arena& arena, ExpressionKind expressionKind, std::size_t start)
        : kind(expressionKind), position(start), operands(arena.memory()) {}

    ExpressionKind kind;
    Operator op = Operator::none;
    bool negated = false;
    bool distinct = false;
    bool hasElse = false;
    std::size_t position;
    Name name;
    Name qualifier;
    Name part;
    Type type;
    List<Expression*> operands;
    Query* query = nullptr;

    /// Where a column was found when the tree was translated last; two columns are the same when
    /// both agree.
    int source = -1;
    int column = -1;
};

struct SelectItem {
    Expression* expression = nullptr; ///< none for `*`
    Name alias;
    Name starQualifier; ///< of `t.*`
    Name variable;      ///< of `@v = …`
    std::size_t position = 0;
};

enum class JoinKind : std::uint8_t { none, inner, left, cross };

struct FromItem {
    JoinKind join = JoinKind::none;
    Name table; ///< a table, or a table variable with its @
    Query* derived = nullptr;
    Name alias;
    Expression* on = nullptr;
};

/// One SELECT of a query; a UNION has several.
struct SelectBranch {
    explicit SelectBranch(Arena& arena)
        : items(arena.memory()), from(arena.memory()), groupBy(arena.memory()) {}

    std::size_t position = 0;
    bool distinct = false;
    bool aggregates = false; ///< an aggregate function stands in it
    bool unionAll = false;   ///< how it is joined to the branch before it
    Expression* top = nullptr;
    List<SelectItem> items;
    List<FromItem> from;
    Expression* where = nullptr;
    List<Expression*> groupBy;
    Expression* having = nullptr;
};

struct OrderItem {
    Expression* expression = nullptr;
    bool descending = false;
};

struct Query {
    explicit Query(Arena& arena) : branches(arena.memory()), orderBy(arena.memory()) {}

    std::size_t position = 0;
    bool assigns = false; ///< its items set variables
    List<SelectBranch*> branches;
    List<OrderItem> orderBy;
};

struct SelectStatement {
    Query* query = nullptr;
};

struct InsertStatement {
    explicit InsertStatement(Arena& arena) : columns(arena.memory()), rows(arena.memory()) {}

    Name table;
    List<Name> columns;
    List<List<Expression*>> rows; ///< of VALUES
    Query* query = nullptr;       ///< of INSERT … SELECT
};

struct Assignment {
    Name column;
    Expression* value = nullptr;
};

struct UpdateStatement {
    explicit UpdateStatement(Arena& arena) : assignments(arena.memory()), from(arena.memory()) {}

    Name target; ///< the table, or its alias in FROM
    List<Assignment> assignments;
    List<FromItem> from;
    Expression* where = nullptr;
};

struct DeleteStatement {
    Name table;
    Expression* where = nullptr;
};

struct ColumnDefinition {
    Name name;
    Name typeName;
    Type type;
    bool nullable = true;
    bool identity = false;
    bool primaryKey = false;
    bool unique = false;
    std::int64_t seed = 1;
    Expression* defaultValue = nullptr;
    std::string_view defaultText; ///< its source
};

struct KeyDefinition {
    explicit KeyDefinition(Arena& arena) : columns(arena.memory()) {}

    bool primary = false;
    List<Name> columns;
};

struct TableDefinition {
    explicit TableDefinition(Arena& arena) : columns(arena.memory()), keys(arena.memory()) {}

    Name table;
    List<ColumnDefinition> columns;
    List<KeyDefinition> keys;
};

struct IndexedColumn {
    Name name;
    bool descending = false;
};

struct CreateIndexStatement {
    explicit CreateIndexStatement(Arena& arena) : columns(arena.memory()) {}

    bool unique = false;
    Name index;
    Name table;
    List<IndexedColumn> columns;
};

struct AddColumnsStatement {
    explicit AddColumnsStatement(Arena& arena) : columns(arena.memory()) {}

    Name table;
    List<ColumnDefinition> columns;
};

struct DropTableStatement {
    Name table;
    bool ifExists = false;
};

struct DeclareVariable {
    Name name;
    Type type;
    Expression* value = nullptr;
};

struct SetVariable {
    Name name;
    Expression* value = nullptr;
};

enum class Option : std::uint8_t { noCount, dateFirst, dateFormat, identityInsert };

struct SetOption {
    Option option = Option::noCount;
    bool on = false;
    int number = 0; ///< DATEFIRST
    Name name;      ///< DATEFORMAT: the order; IDENTITY_INSERT: the table
};

struct Block;
struct IfStatement;
struct WhileStatement;

using Statement =
    std::variant<SelectStatement*, InsertStatement*, UpdateStatement*, DeleteStatement*, TableDefinition*,
                 CreateIndexStatement*, AddColumnsStatement*, DropTableStatement*, DeclareVariable*,
                 SetVariable*, SetOption*, Block*, IfStatement*, WhileStatement*>;

/// BEGIN … END, and the text as a whole.
struct Block {
    explicit Block(Arena& arena) : statements(arena.memory()) {}

    List<Statement> statements;
};

struct IfStatement {
    Expression* condition = nullptr;
    Statement then;
    Statement otherwise; ///< a null Block when there is no ELSE
    bool hasElse = false;
};

struct WhileStatement {
    Expression* condition = nullptr;
    Statement body;
};

} // namespace tellurix::embedded
