#pragma once

#include "database/embedded/execution/Batch.h"
#include "database/embedded/execution/Calculation.h"
#include "database/embedded/execution/StatementCache.h"
#include "database/embedded/sqlite/SqliteConnection.h"
#include "database/embedded/sqlite/cell.h"
#include "database/embedded/translation/Catalogue.h"
#include "database/embedded/translation/Translator.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::embedded {

class EmbeddedRecordset;

/// How one statement of a batch is translated. The node is its place in the syntax tree.
struct Task {
    const void* node = nullptr;
    std::function<Translation(Translator&)> translate;
};

/// A statement that has been compiled for one run.
struct Running {
    Compiled* compiled = nullptr;
    SqliteStatement statement;
};

/// What a connection is made of, shared with its recordsets: the file, the tables, the statements
/// that have been compiled, and the rows that are still being read.
class Engine {
public:
    Engine(const std::filesystem::path& file, bool create, std::chrono::milliseconds patience,
           const base::Clock& clock);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    SqlSession& session() { return connection_.session(); }
    SqliteConnection& connection() { return connection_; }
    Catalogue& catalogue() { return catalogue_; }

    std::shared_ptr<Batch> batchOf(std::string_view text) { return cache_.find(text); }

    /// The translation of a task, made now when there is none for the present schema.
    Compiled& compile(Batch& batch, const Task& task);
    /// A statement with its parameters bound, stepped once; compiled anew when another connection
    /// has changed the schema meanwhile.
    /// @return the statement on its first row, or an empty one when there is no row
    Running start(Batch& batch, const Task& task, const Frame& frame);
    void giveBack(Running running);
    /// Runs a statement that writes.
    /// @return how many rows it changed
    std::int64_t write(Batch& batch, const Task& task, const Frame& frame);
    /// The only value of a statement's only row.
    Cell valueOf(Batch& batch, const Task& task, const Frame& frame);

    /// Has to be called after the schema may have changed.
    void refreshCatalogue();

    /// Every open recordset reads its remaining rows now: SQLite would mix a write of the same
    /// connection into rows that are still being fetched.
    void readAllOpenRows();
    /// Has to be called before anything is written: sees to the open rows, and that the file is in its place.
    void prepareToWrite();
    /// The same for those that have begun to read: as long as they do, every statement of the
    /// connection would see the database as it was then.
    void releaseSnapshot();
    void opened(EmbeddedRecordset& rows) { open_.push_back(&rows); }
    void closed(EmbeddedRecordset& rows);

    /// Makes the tables of a batch's table variables, or empties them when it has run before.
    void prepareTableVariables(Batch& batch);
    /// What a batch with this computed text, under these options, has left; null when there is nothing.
    std::shared_ptr<const Computed> computed(const Batch& batch) const;
    void keep(const Batch& batch, const std::shared_ptr<const Computed>& computed);
    /// Gives the batch's table variables an index over the columns by which its queries look into them.
    void indexTableVariables(Batch& batch);
    /// A table variable that is gone; its table is dropped at the next occasion.
    void discard(std::string sqlName) { discarded_.push_back(std::move(sqlName)); }

private:
    SqliteStatement prepare(const Translation& translation);
    void bind(SqliteStatement& statement, const Translation& translation, const Frame& frame);
    void dropDiscarded();

    SqliteConnection connection_;
    Catalogue catalogue_;
    int generation_ = 0;
    int tableVariableCount_ = 0;
    std::vector<EmbeddedRecordset*> open_;
    std::vector<std::string> discarded_;
    /// By the text that computes it, as long as one of its batches is there.
    std::map<std::string, std::weak_ptr<const Computed>, std::less<>> computed_;
    StatementCache cache_;
};

} // namespace tellurix::embedded
