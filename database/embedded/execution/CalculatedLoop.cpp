#include "database/embedded/execution/CalculatedLoop.h"

#include "database/embedded/values/names.h"

#include <algorithm>

namespace tellurix::embedded {

namespace {

/// Rows that are written together: more of them make no statement quicker.
constexpr std::size_t together = 16;

/// Nothing but SQLite can say whether a key is there already.
bool hasKeys(const TableDefinition& table) {
    return !table.keys.empty() || std::ranges::any_of(table.columns, [](const ColumnDefinition& column) {
        return column.identity || column.primaryKey || column.unique || column.defaultValue != nullptr;
    });
}

} // namespace

std::optional<CalculatedLoop> CalculatedLoop::of(const WhileStatement& loop, const Batch& batch) {
    auto condition = Calculation::of(*loop.condition, batch.variables(), TypeKind::condition);
    if (!condition) return {};
    CalculatedLoop calculated(std::move(*condition));
    if (!calculated.add(loop.body, batch)) return {};
    return calculated;
}

bool CalculatedLoop::add(const Statement& statement, const Batch& batch) {
    if (const auto* const* const block = std::get_if<Block*>(&statement))
        return std::ranges::all_of((*block)->statements,
                                   [&](const Statement& each) { return add(each, batch); });
    if (const auto* const* const insert = std::get_if<InsertStatement*>(&statement))
        return addRow(**insert, batch);
    const auto* const* const set = std::get_if<SetVariable*>(&statement);
    if (set == nullptr) return false;
    const Variables& variables = batch.variables();
    const int number = variables.find((*set)->name.folded);
    if (number == Variables::none) return false;
    const Type& type = variables.scalars[static_cast<std::size_t>(number)].type;
    auto value = Calculation::of(*(*set)->value, variables, type.kind);
    if (!value || type.dayOnly) return false;
    steps_.push_back({number, {std::move(*value)}});
    return true;
}

bool CalculatedLoop::addRow(const InsertStatement& insert, const Batch& batch) {
    const auto definition = std::ranges::find_if(batch.tableVariables(), [&](const TableDefinition* each) {
        return each->table.folded == insert.table.folded;
    });
    const auto table = batch.variables().tables.find(insert.table.folded);
    const bool oneRow = insert.query == nullptr && insert.rows.size() == 1 && target_.empty();
    if (!oneRow || table == batch.variables().tables.end() || definition == batch.tableVariables().end() ||
        hasKeys(**definition))
        return false;
    const List<Expression*>& values = insert.rows.front();
    const List<ColumnDefinition>& columns = (*definition)->columns;
    // A row with fewer columns would have to know what the others hold.
    if (values.size() != columns.size() ||
        (!insert.columns.empty() && insert.columns.size() != columns.size()))
        return false;
    Step step;
    for (std::size_t index = 0; index < values.size(); ++index) {
        const std::string_view name =
            insert.columns.empty() ? columns[index].name.folded : insert.columns[index].folded;
        const auto column = std::ranges::find_if(
            columns, [&](const ColumnDefinition& each) { return each.name.folded == name; });
        if (column == columns.end() || column->type.dayOnly) return false;
        auto value = Calculation::of(*values[index], batch.variables(), column->type.kind);
        if (!value) return false;
        step.values.push_back(std::move(*value));
        target_ += (index == 0 ? " (" : ",") + quoteName(column->name.written);
    }
    target_ = table->second->sqlName() + target_ + ")";
    width_ = values.size();
    steps_.push_back(std::move(step));
    return true;
}

CalculatedLoop::End CalculatedLoop::run(Engine& engine, Frame& frame) {
    engine.readAllOpenRows();
    const SessionOptions& options = engine.session().options;
    End end;
    for (;;) {
        const auto goesOn = condition_.value(frame, options);
        end.reached = goesOn == 0;
        if (goesOn != 1) break;
        const Frame before = frame;
        const std::size_t rows = waiting_.size();
        if (!round(frame, options)) {
            frame = before;
            waiting_.resize(rows);
            break;
        }
        end.wrote = width_ > 0;
        if (width_ > 0 && waiting_.size() == together * width_) write(engine, together);
    }
    while (!waiting_.empty())
        write(engine, 1);
    return end;
}

bool CalculatedLoop::round(Frame& frame, const SessionOptions& options) {
    for (Step& step : steps_)
        for (Calculation& calculation : step.values) {
            const auto value = calculation.value(frame, options);
            if (!value) return false;
            if (step.variable == Variables::none)
                waiting_.push_back(*value);
            else
                frame[static_cast<std::size_t>(step.variable)] = *value;
        }
    return true;
}

void CalculatedLoop::write(Engine& engine, std::size_t rows) {
    SqliteStatement one;
    SqliteStatement& statement = rows == together ? many_ : one;
    if (!statement) statement = engine.connection().prepare(insertion(rows));
    for (std::size_t index = 0; index < rows * width_; ++index)
        statement.bind(static_cast<int>(index) + 1, waiting_[index]);
    statement.step();
    statement.reset();
    waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(rows * width_));
}

std::string CalculatedLoop::insertion(std::size_t rows) const {
    std::string row = "(?";
    for (std::size_t index = 1; index < width_; ++index)
        row += ",?";
    std::string sql = "INSERT INTO " + target_ + " VALUES " + row + ")";
    for (std::size_t index = 1; index < rows; ++index)
        sql += "," + row + ")";
    return sql;
}

} // namespace tellurix::embedded
