#include "database/embedded/execution/UpdatableEmbeddedRecordset.h"

#include "database/embedded/execution/reported.h"
#include "database/embedded/values/names.h"

#include <algorithm>
#include <variant>

namespace tellurix::embedded {

UpdatableEmbeddedRecordset::UpdatableEmbeddedRecordset(std::shared_ptr<Engine> engine, std::string_view query)
    : engine_(std::move(engine)), batch_(engine_->batchOf(query)) {
    const auto& statements = batch_->block().statements;
    const auto* const select =
        statements.size() == 1 ? std::get_if<SelectStatement*>(&statements.front()) : nullptr;
    if (select == nullptr) failSyntax("Only a single SELECT can be opened for editing", 0);
    readRows(**select);
}

void UpdatableEmbeddedRecordset::readRows(const SelectStatement& select) {
    // Not the statement's own node: the same text may be run as a plain query too.
    const Task task{select.query, [&select](Translator& translator) { return translator.updatable(select); }};
    const Frame noVariables;
    Running running = engine_->start(*batch_, task, noVariables);
    const Translation& translation = batch_->compiled(task.node).translation;
    tableName_ = translation.editedTable;
    tableColumns_ = translation.editedColumns;
    columns_ = translation.columns;
    if (!running.statement) return;
    do {
        Row row{running.statement.integer(static_cast<int>(columns_->size())), {}};
        row.values.reserve(columns_->size());
        for (std::size_t index = 0; index < columns_->size(); ++index)
            row.values.push_back(
                valueAt(running.statement, static_cast<int>(index), (*columns_)[index].type));
        rows_.push_back(std::move(row));
    } while (running.statement.step());
    engine_->giveBack(std::move(running));
}

UpdatableEmbeddedRecordset::Row& UpdatableEmbeddedRecordset::row() {
    if (atEnd() || rows_[current_].removed)
        throw base::DatabaseError(base::DatabaseErrorCategory::other, "There is no current row",
                                  batch_->text());
    return rows_[current_];
}

void UpdatableEmbeddedRecordset::moveNext() {
    if (atEnd()) row();
    changes_.clear();
    ++current_;
}

base::Value UpdatableEmbeddedRecordset::field(std::size_t index) {
    return row().values.at(index);
}

void UpdatableEmbeddedRecordset::setField(std::string_view name, base::Value value) {
    row();
    const std::size_t index = fieldIndex(name);
    const int column = tableColumns_[index];
    if (column == Table::noColumn)
        throw base::DatabaseError(
            base::DatabaseErrorCategory::unknownName,
            "The field " + std::string(name) + " is no column of the table " + tableName_, batch_->text());
    changes_[column] = std::move(value);
}

void UpdatableEmbeddedRecordset::update() {
    Row& current = row();
    if (changes_.empty()) return;
    reported(batch_->text(), [&] { writeChanges(current); });
    changes_.clear();
}

/// The fields then show what the columns made of the values.
void UpdatableEmbeddedRecordset::writeChanges(Row& current) {
    engine_->prepareToWrite();
    std::vector<Edit> edits;
    Frame frame;
    for (const auto& [column, value] : changes_) {
        TypedCell typed = cellOf(value);
        // Texts of every length are written by one statement; it checks whether they fit.
        if (typed.type.isText()) typed.type.length = Type::unlimited;
        edits.push_back({column, typed.type});
        frame.push_back(std::move(typed.cell));
    }
    frame.emplace_back(current.number);
    const Task task{batch_->editNode(edits),
                    [&](Translator& translator) { return translator.edit(tableName_, edits); }};
    Running running = engine_->start(*batch_, task, frame);
    requireRow(static_cast<bool>(running.statement));
    std::vector<base::Value> values = current.values;
    for (std::size_t index = 0; index < columns_->size(); ++index) {
        const auto edit = std::ranges::find(edits, tableColumns_[index], &Edit::column);
        if (edit != edits.end())
            values[index] =
                valueAt(running.statement, static_cast<int>(edit - edits.begin()), (*columns_)[index].type);
    }
    // The row is written for good once the statement has come to its end.
    running.statement.step();
    engine_->giveBack(std::move(running));
    current.values = std::move(values);
}

void UpdatableEmbeddedRecordset::remove() {
    Row& current = row();
    reported(batch_->text(), [&] {
        engine_->prepareToWrite();
        SqliteStatement statement =
            engine_->connection().prepare("DELETE FROM main." + quoteName(tableName_) + " WHERE _rowid_=?1");
        statement.bind(1, current.number);
        statement.step();
        requireRow(engine_->connection().changes() == 1);
    });
    current.removed = true;
    changes_.clear();
}

void UpdatableEmbeddedRecordset::requireRow(bool found) const {
    if (!found)
        throw Fault(base::DatabaseErrorCategory::other,
                    "The row of " + tableName_ + " that was being edited is no longer there");
}

} // namespace tellurix::embedded
