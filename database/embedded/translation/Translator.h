#pragma once

#include "database/embedded/syntax/ast.h"
#include "database/embedded/translation/Catalogue.h"
#include "database/embedded/translation/Fragment.h"
#include "database/embedded/translation/Scope.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::embedded {

/// The variables of a batch, as far as their names and types go.
struct Variables {
    static constexpr int none = -1;

    struct Scalar {
        std::string name;
        Type type;
    };

    std::vector<Scalar> scalars;
    NameMap<int> scalarByName;
    NameMap<std::shared_ptr<const Table>> tables;

    int find(std::string_view folded) const;
    /// @throws Fault (unknownName)
    int require(const Name& name) const;
};

/// A statement in SQLite's SQL, ready to be compiled.
struct Translation {
    /// Stands among the parameters for the moment at which the statement starts (GETDATE).
    static constexpr int now = -1;
    /// The same for the statement's ConditionMemory.
    static constexpr int memory = -2;

    struct Column {
        std::string name;
        Type type;
    };

    std::string sql;
    std::vector<int> parameters; ///< what ?1, ?2, … are: numbers of variables, `now`, `memory`
    /// The place in the statement text that is nested most deeply.
    std::size_t deepestPosition = base::DatabaseError::noPosition;
    /// Of a query; shared with the recordsets that are open on it.
    std::shared_ptr<const std::vector<Column>> columns = std::make_shared<std::vector<Column>>();
    /// An INSERT into a table with an identity: its folded name, and whether the key is given.
    std::string identityTable;
    bool givesIdentity = false;
    bool writesVariable = false; ///< it writes into a table variable, not into the file
    /// A query whose rows are edited: its table, and the table's column of each field.
    std::string editedTable;
    std::vector<int> editedColumns;
};

/// What kind of value is written into a column of a row that is edited in place.
struct Edit {
    int column;
    Type type;
};

/// Translates one statement at a time. Types are worked out here, so that the SQL holds every
/// conversion that T-SQL would make, and names are resolved here, so that SQLite never guesses.
///
/// Every function that takes an expression answers with its fragment; conditions and values are
/// told apart by type and refused in each other's place.
class Translator {
public:
    Translator(Catalogue& catalogue, const Variables& variables)
        : catalogue_(catalogue), variables_(variables) {}

    Translation query(const SelectStatement& select);
    /// A query whose items are converted to the variables that they are for.
    Translation assignments(const SelectStatement& select);
    Translation insert(const InsertStatement& insert);
    Translation update(const UpdateStatement& update);
    Translation remove(const DeleteStatement& deletion);
    /// `SELECT value`, converted to a variable's type.
    Translation value(Expression& expression, const Type& type);
    /// `SELECT 1` when the condition holds, else 0.
    Translation condition(Expression& expression);
    /// A query on one table whose last column is the row's number in SQLite.
    Translation updatable(const SelectStatement& select);
    /// Writes one row, and answers what its columns made of the values. Those are the first variables,
    /// the row's number is the one behind them.
    Translation edit(const std::string& table, const std::vector<Edit>& edits);

private:
    struct Branch;
    struct QueryText {
        std::string sql;
        std::vector<OutputColumn> columns;
    };
    using EditItem = std::function<Fragment(Fragment, std::size_t)>;

    // translate_queries.cpp
    static std::shared_ptr<const std::vector<Translation::Column>>
    resultColumns(const std::vector<OutputColumn>& columns);
    QueryText queryText(const Query& query, bool named, const EditItem& edit = {});
    QueryText unionText(const Query& query, bool named);
    QueryText singleText(const Query& query, bool named, const EditItem& edit);
    /// Inside the branch's scope.
    void fillBranch(Branch& branch, const SelectBranch& source, const EditItem& edit);
    /// Whether its WHERE asks for one key, so that there cannot be two rows.
    bool choosesOneRow(const SelectBranch& branch) const;
    void addStar(Branch& branch, const SelectItem& item);
    std::string fromText(const List<FromItem>& from, const Expression* where, Scope& scope);
    std::string fromItemText(const FromItem& item, Scope& scope);
    /// Has a derived table make no groups but those that can meet a row of the answer; see carried_keys.h.
    void narrow(const List<FromItem>& from, const Expression* where, const FromItem& item,
                const Scope& scope);
    bool isWholeNumber(const Expression& fixedValue) const;
    std::string orderText(const Query& query, const std::vector<OutputColumn>& columns, const Branch* branch);
    int orderedColumn(const Expression& expression, const std::vector<OutputColumn>& columns) const;
    std::string topText(const SelectBranch& branch);
    static std::string branchText(const Branch& branch, bool named);

    // translate_writes.cpp
    std::string insertedQuery(const Query& query, const Table& target, const std::vector<int>& given,
                              const std::string& tail);
    std::string insertedRows(const List<List<Expression*>>& rows, const Table& target,
                             const std::vector<int>& given, const std::string& tail);
    std::string plainUpdate(const UpdateStatement& update);
    std::string joinedUpdate(const UpdateStatement& update);
    std::vector<int> insertColumns(const InsertStatement& insert, const Table& table) const;
    std::vector<int> updatedColumns(const UpdateStatement& update, const Table& table) const;
    int assignedColumn(const Table& table, const Name& name) const;
    Fragment defaultOf(const Table& table, int column);
    const Table& table(const Name& name);

    // translate_expressions.cpp
    Fragment any(Expression& expression);
    Fragment value(Expression& expression);
    Fragment condition(Expression* expression, std::string_view place);
    Fragment dispatch(Expression& expression);
    Fragment literal(const Expression& expression);
    Fragment decimalLiteral(const Expression& expression);
    Fragment column(Expression& expression);
    Fragment variable(const Expression& expression);
    Fragment negate(const Expression& expression);
    Fragment arithmetic(const Expression& expression);
    static Fragment calculated(const Expression& expression, Fragment left, Fragment right);
    static Fragment shiftedDate(const Expression& expression, Fragment left, Fragment right);
    Fragment caseWhen(const Expression& expression);
    Fragment simpleCase(const Expression& expression);
    Fragment caseText(std::string sql, std::vector<Fragment> conditions, std::vector<Fragment> results,
                      std::size_t position);
    Fragment subquery(const Expression& expression);
    std::string parameter(int variable);

    // translate_conditions.cpp
    Fragment comparison(const Expression& expression);
    Fragment logical(const Expression& expression);
    std::string remembered(const std::vector<std::string>& columns, const std::string& condition);
    /// The same for a whole number that is never NULL.
    std::string rememberedNumber(const std::vector<std::string>& columns, const std::string& number);
    Fragment isNull(const Expression& expression);
    Fragment inList(const Expression& expression);
    Fragment inQuery(const Expression& expression);
    std::optional<Fragment> ownRowCondition(const Expression& expression);
    Fragment like(const Expression& expression);
    Fragment between(const Expression& expression);
    Fragment exists(const Expression& expression);

    // translate_functions.cpp
    Fragment function(const Expression& call);
    Fragment isNullFunction(const Expression& call);
    Fragment coalesce(const Expression& call);
    Fragment nullIf(const Expression& call);
    Fragment iif(const Expression& call);
    Fragment round(const Expression& call);
    Fragment wholeNumber(const Expression& call);
    Fragment absolute(const Expression& call);
    Fragment textEnd(const Expression& call);
    Fragment substring(const Expression& call);
    Fragment changedText(const Expression& call);
    Fragment textLength(const Expression& call);
    Fragment charIndex(const Expression& call);
    Fragment patIndex(const Expression& call);
    Fragment replace(const Expression& call);
    Fragment isNumeric(const Expression& call);
    Fragment isDate(const Expression& call);
    Fragment yearMonthDay(const Expression& call);
    Fragment now(const Expression& call);
    Fragment identityOf(const Expression& call);
    Fragment aggregate(const Expression& call);
    Fragment sum(const Expression& call, const Fragment& argument);
    Fragment cast(const Expression& call);
    Fragment datePart(const Expression& call);
    /// Any value, and the type of the text that is made of it.
    struct TextArgument {
        std::string sql;
        Type type;
    };
    TextArgument changedArgument(const Expression& call);
    Fragment textArgument(const Expression& call, std::size_t index);
    Fragment integerArgument(const Expression& call, std::size_t index);
    Fragment dateArgument(const Expression& call, std::size_t index);

    void start();
    Translation finish(std::string sql);
    /// Counts the nesting of what is being translated.
    class Depth;

    Catalogue& catalogue_;
    const Variables& variables_;
    Scope* scope_ = nullptr;
    int sourceCount_ = 0;
    /// Asking every row every condition takes long where both are many; the columns that some of the
    /// conditions share have few different values. Below this number remembering costs more than asking.
    static constexpr std::size_t worthRemembering = 8;
    int rememberedCount_ = 0;
    int depth_ = 0;
    int deepest_ = 0;
    std::size_t deepestPosition_ = 0;
    /// Source and column of every use of a column so far.
    std::vector<std::pair<int, int>> usedColumns_;
    std::vector<int> parameters_;
    /// What else the WHERE of a derived table asks.
    std::vector<std::pair<const SelectBranch*, Expression*>> narrowing_;
    Arena defaults_; ///< syntax trees that no text holds: columns' defaults, conditions of `narrowing_`
};

class Translator::Depth {
public:
    Depth(Translator& translator, std::size_t position) : depth_(translator.depth_) {
        if (++depth_ <= translator.deepest_) return;
        translator.deepest_ = depth_;
        translator.deepestPosition_ = position;
    }
    ~Depth() { --depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

private:
    int& depth_;
};

} // namespace tellurix::embedded
