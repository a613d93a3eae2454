#include "database/embedded/execution/Engine.h"

#include "database/embedded/execution/EmbeddedRecordset.h"
#include "database/embedded/sqlite/ConditionMemory.h"
#include "database/embedded/translation/computed_part.h"
#include "database/embedded/translation/definitions.h"
#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

/// While a translated statement takes its first step SQLite must not compile it anew by itself.
class CompilingRefused {
public:
    explicit CompilingRefused(SqlSession& session) : session_(session) {
        session_.refusesCompiling = true;
        session_.compilingRefused = false;
    }
    ~CompilingRefused() {
        session_.refusesCompiling = false;
        session_.compilingRefused = false;
    }
    CompilingRefused(const CompilingRefused&) = delete;
    CompilingRefused& operator=(const CompilingRefused&) = delete;

private:
    SqlSession& session_;
};

} // namespace

Engine::Engine(const std::filesystem::path& file, bool create, std::chrono::milliseconds patience,
               const base::Clock& clock)
    : connection_(file, create, patience, clock), catalogue_(connection_) {}

Engine::~Engine() {
    // Batches hand their table variables back to the engine, so they go while it is whole.
    cache_.clear();
}

void Engine::refreshCatalogue() {
    if (catalogue_.refresh()) ++generation_;
}

Compiled& Engine::compile(Batch& batch, const Task& task) {
    Compiled& compiled = batch.compiled(task.node);
    if (compiled.generation == generation_) return compiled;
    refreshCatalogue();
    Translator translator(catalogue_, batch.variables());
    compiled.translation = task.translate(translator);
    compiled.idle.clear();
    compiled.generation = generation_;
    return compiled;
}

void Engine::bind(SqliteStatement& statement, const Translation& translation, const Frame& frame) {
    for (std::size_t index = 0; index < translation.parameters.size(); ++index) {
        const int number = translation.parameters[index];
        const int parameter = static_cast<int>(index) + 1;
        if (number == Translation::now)
            statement.bind(parameter, toMilliseconds(session().clock.now()));
        else if (number == Translation::memory)
            ConditionMemory::bind(statement, parameter);
        else
            bindCell(statement, parameter, frame[static_cast<std::size_t>(number)]);
    }
}

SqliteStatement Engine::prepare(const Translation& translation) {
    try {
        return connection_.prepare(translation.sql, true);
    } catch (const NestedTooDeeply&) {
        failSyntax("The statement is nested too deeply", translation.deepestPosition);
    }
}

Running Engine::start(Batch& batch, const Task& task, const Frame& frame) {
    releaseSnapshot();
    session().failure.reset();
    // A schema that changes over and over while we compile is a fault of its own.
    constexpr int mostAttempts = 20;
    for (int attempt = 1;; ++attempt) {
        Compiled& compiled = compile(batch, task);
        Running running{&compiled, {}};
        if (compiled.idle.empty()) {
            running.statement = prepare(compiled.translation);
        } else {
            running.statement = std::move(compiled.idle.back());
            compiled.idle.pop_back();
        }
        bind(running.statement, compiled.translation, frame);
        try {
            const CompilingRefused refused(session());
            if (running.statement.step()) return running;
            giveBack(std::move(running));
            return {};
        } catch (const SchemaChanged&) {
            if (attempt == mostAttempts)
                throw Fault(base::DatabaseErrorCategory::other, "The tables of the database keep changing");
            // Where the tables are the same, SQLite alone wants to compile anew.
            compiled.idle.clear();
            refreshCatalogue();
        }
    }
}

void Engine::giveBack(Running running) {
    running.statement.reset();
    // The memory serves one run, and is not kept with a statement that waits for its next one.
    const std::vector<int>& parameters = running.compiled->translation.parameters;
    const auto memory = std::find(parameters.begin(), parameters.end(), Translation::memory);
    if (memory != parameters.end())
        running.statement.bindNull(static_cast<int>(memory - parameters.begin()) + 1);
    running.compiled->idle.push_back(std::move(running.statement));
}

std::int64_t Engine::write(Batch& batch, const Task& task, const Frame& frame) {
    // In a loop that fills a table variable asking for the file would take as long as the rows.
    if (!compile(batch, task).translation.writesVariable) connection_.requireFileInPlace();
    readAllOpenRows();
    start(batch, task, frame);
    return connection_.changes();
}

Cell Engine::valueOf(Batch& batch, const Task& task, const Frame& frame) {
    Running running = start(batch, task, frame);
    if (!running.statement) return {};
    Cell cell = cellAt(running.statement, 0);
    giveBack(std::move(running));
    return cell;
}

void Engine::prepareToWrite() {
    connection_.requireFileInPlace();
    readAllOpenRows();
}

void Engine::readAllOpenRows() {
    const std::vector<EmbeddedRecordset*> rows = std::move(open_);
    open_.clear();
    for (EmbeddedRecordset* const each : rows)
        each->readRemainingRows();
}

void Engine::releaseSnapshot() {
    const auto reading = std::partition(open_.begin(), open_.end(),
                                        [](const EmbeddedRecordset* rows) { return !rows->isReading(); });
    const std::vector<EmbeddedRecordset*> rows(reading, open_.end());
    open_.erase(reading, open_.end());
    for (EmbeddedRecordset* const each : rows)
        each->readRemainingRows();
}

void Engine::closed(EmbeddedRecordset& rows) {
    open_.erase(std::remove(open_.begin(), open_.end(), &rows), open_.end());
}

void Engine::prepareTableVariables(Batch& batch) {
    if (batch.tableVariables().empty()) return;
    readAllOpenRows();
    dropDiscarded();
    Variables& variables = batch.variables();
    for (const TableDefinition* const definition : batch.tableVariables()) {
        const auto known = variables.tables.find(definition->table.folded);
        if (known != variables.tables.end()) {
            connection_.run("DELETE FROM " + known->second->sqlName());
            continue;
        }
        const std::string sqlName = "temp.\"@" + std::to_string(++tableVariableCount_) + "\"";
        connection_.run(createTableText(*definition, sqlName));
        variables.tables.emplace(
            std::string(definition->table.folded),
            std::shared_ptr<const Table>(
                new Table(tableOf(*definition, sqlName)), [this](const Table* table) {
                    discard(table->sqlName());
                    delete table; // NOLINT(cppcoreguidelines-owning-memory): the deleter of a shared_ptr
                }));
    }
}

std::shared_ptr<const Computed> Engine::computed(const Batch& batch) const {
    const auto found = computed_.find(batch.computedText());
    auto computed = found == computed_.end() ? nullptr : found->second.lock();
    if (!computed) return {};
    SessionOptions options = connection_.session().options;
    if (batch.setsNoCountFirst()) options.noCount = computed->before.noCount;
    return computed->before == options ? computed : nullptr;
}

void Engine::keep(const Batch& batch, const std::shared_ptr<const Computed>& computed) {
    std::erase_if(computed_, [](const auto& entry) { return entry.second.expired(); });
    computed_.insert_or_assign(std::string(batch.computedText()), computed);
}

void Engine::indexTableVariables(Batch& batch) {
    for (const auto& [name, table] : batch.variables().tables) {
        std::string columns;
        for (const std::string_view column : comparedColumns(batch.block()))
            if (const int number = table->findColumn(column); number != Table::noColumn)
                columns += (columns.empty() ? "" : ",") + quoteName(table->column(number).name);
        // temp."@1" gets an index on "@1"; each batch that uses it may look for other columns.
        const std::string own = table->sqlName().substr(table->sqlName().find('.') + 1);
        if (!columns.empty())
            connection_.run("CREATE INDEX IF NOT EXISTS temp." + quoteName(own + columns) + " ON " + own +
                            " (" + columns + ")");
    }
}

void Engine::dropDiscarded() {
    for (const std::string& sqlName : discarded_)
        connection_.run("DROP TABLE " + sqlName);
    discarded_.clear();
}

} // namespace tellurix::embedded
