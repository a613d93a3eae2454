#pragma once

#include "database/embedded/sqlite/SqlSession.h"
#include "database/embedded/sqlite/SqliteStatement.h"
#include "database/embedded/sqlite/cell.h"
#include "database/embedded/syntax/ast.h"
#include "database/embedded/translation/Translator.h"
#include "database/embedded/values/packed.h"

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tellurix::embedded {

/// One statement of a batch as SQLite runs it.
struct Compiled {
    Translation translation;
    int generation = -1;               ///< the schema that it was translated for; -1: not yet
    std::vector<SqliteStatement> idle; ///< prepared and not running now
};

/// What the first statements of a batch have computed, for the options that they ran under. Batches that
/// begin with the same text share it.
struct Computed {
    SessionOptions before;
    SessionOptions after;
    std::vector<Cell> frame;
    std::int64_t rowsAffected = -1;
    NameMap<std::shared_ptr<const Table>> tables;
};

/// A statement text once it has been parsed, and what has been compiled of it so far: statements
/// are translated when they are reached, because a batch may create the tables that it then uses.
class Batch {
public:
    /// @throws Fault (syntax)
    explicit Batch(std::string_view text);

    const std::string& text() const { return text_; }
    Block& block() { return *block_; }
    Variables& variables() { return variables_; }
    const Variables& variables() const { return variables_; }
    const List<TableDefinition*>& tableVariables() const { return tableVariables_; }
    /// How many of the first statements `computed` stands for; see computed_part.h.
    std::size_t computedStatements() const { return computedStatements_; }
    /// The text of those statements; all of the text where what follows them could mean more by the same
    /// words.
    std::string_view computedText() const { return std::string_view(text_).substr(0, computedSize_); }
    /// Whether it begins with SET NOCOUNT, so that nothing depends on what was in force before.
    bool setsNoCountFirst() const;
    /// What the batch works with from now on: its table variables are those of `computed`, or none yet.
    /// @return false when it did so before
    bool use(std::shared_ptr<const Computed> computed);

    /// @param node the part of the syntax tree that is meant
    Compiled& compiled(const void* node) { return compiled_[node]; }
    /// What stands in the place of a part of the syntax tree for writing into the rows of a query.
    const void* editNode(const std::vector<Edit>& edits) {
        std::vector<std::pair<int, std::int64_t>> kinds;
        for (const Edit& edit : edits)
            kinds.emplace_back(edit.column, packType(edit.type));
        return &*editNodes_.insert(std::move(kinds)).first;
    }

private:
    void collect(const Statement& statement);
    void collect(const Block& block);
    void addVariable(const DeclareVariable& variable);

    std::string text_;
    Arena arena_;
    Block* block_ = nullptr;
    Variables variables_;
    List<TableDefinition*> tableVariables_;
    std::size_t computedStatements_ = 0;
    std::size_t computedSize_ = 0;
    std::shared_ptr<const Computed> computed_;
    std::unordered_map<const void*, Compiled> compiled_;
    std::set<std::vector<std::pair<int, std::int64_t>>> editNodes_;
};

} // namespace tellurix::embedded
