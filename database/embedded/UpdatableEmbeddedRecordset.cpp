#include "embedded/UpdatableEmbeddedRecordset.h"

#include "embedded/Fragment.h"
#include "embedded/names.h"
#include "embedded/reported.h"

#include <variant>

namespace tellurix::embedded {

UpdatableEmbeddedRecordset::UpdatableEmbeddedRecordset(std::shared_ptr<Engine> engine, std::string_view query)
    : engine_(std::move(engine)), query_(query) {
    Batch batch(query);
    const auto& statements = batch.block().statements;
    const auto* const select =
        statements.size() == 1 ? std::get_if<SelectStatement*>(&statements.front()) : nullptr;
    if (select == nullptr) failSyntax("Only a single SELECT can be opened for editing", 0);
    readRows(**select);
}

void UpdatableEmbeddedRecordset::readRows(const SelectStatement& select) {
    engine_->releaseSnapshot();
    engine_->refreshCatalogue();
    const Variables none;
    Translator translator(engine_->catalogue(), none);
    const Table* table = nullptr;
    const Translation translation = translator.updatable(select, table, tableColumns_);
    tableName_ = table->name();
    columns_ = *translation.columns;
    SqliteStatement statement = engine_->connection().prepare(translation.sql);
    for (std::size_t parameter = 1; parameter <= translation.parameters.size(); ++parameter)
        statement.bind(static_cast<int>(parameter), toMilliseconds(engine_->session().clock.now()));
    while (statement.step()) {
        Row row{statement.integer(static_cast<int>(columns_.size())), {}};
        for (std::size_t index = 0; index < columns_.size(); ++index)
            row.values.push_back(valueAt(statement, static_cast<int>(index), columns_[index].type));
        rows_.push_back(std::move(row));
    }
}

UpdatableEmbeddedRecordset::Row& UpdatableEmbeddedRecordset::row() {
    if (atEnd() || rows_[current_].removed)
        throw common::DatabaseError(common::DatabaseErrorCategory::other, "There is no current row", query_);
    return rows_[current_];
}

void UpdatableEmbeddedRecordset::moveNext() {
    if (atEnd()) row();
    changes_.clear();
    ++current_;
}

common::Value UpdatableEmbeddedRecordset::field(std::size_t index) {
    return row().values.at(index);
}

void UpdatableEmbeddedRecordset::setField(std::string_view name, common::Value value) {
    row();
    const std::size_t index = fieldIndex(name);
    const int column = tableColumns_[index];
    if (column == Table::noColumn)
        throw common::DatabaseError(
            common::DatabaseErrorCategory::unknownName,
            "The field " + std::string(name) + " is no column of the table " + tableName_, query_);
    changes_[column] = std::move(value);
}

void UpdatableEmbeddedRecordset::update() {
    Row& current = row();
    if (changes_.empty()) return;
    reported(query_, [&] {
        writeChanges(current);
        reread(current);
    });
    changes_.clear();
}

void UpdatableEmbeddedRecordset::writeChanges(Row& current) {
    engine_->readAllOpenRows();
    engine_->refreshCatalogue();
    const Table* const table = engine_->catalogue().find(foldName(tableName_));
    if (table == nullptr)
        failUnknownName("There is no table " + tableName_, common::DatabaseError::noPosition);
    std::string sql = "UPDATE " + table->sqlName() + " SET ";
    std::vector<Cell> cells;
    for (const auto& [column, value] : changes_) {
        if (table->column(column).identity)
            failSyntax("The identity " + tableName_ + "." + table->column(column).name + " cannot be changed",
                       common::DatabaseError::noPosition);
        TypedCell typed = cellOf(value);
        cells.push_back(std::move(typed.cell));
        const std::string label = tableName_ + "." + table->column(column).name;
        Fragment parameter{.sql = "?" + std::to_string(cells.size()),
                           .type = typed.type,
                           .position = common::DatabaseError::noPosition};
        parameter = convert(std::move(parameter), table->column(column).type,
                            {.purpose = Destination::Purpose::column, .column = label});
        sql += (cells.size() == 1 ? "" : ",") + quoteName(table->column(column).name) + "=" + parameter.sql;
    }
    sql += " WHERE _rowid_=?" + std::to_string(cells.size() + 1);
    SqliteStatement statement = engine_->connection().prepare(sql);
    int parameter = 0;
    for (const Cell& cell : cells)
        bindCell(statement, ++parameter, cell);
    statement.bind(++parameter, current.number);
    statement.step();
    requireOneRow(engine_->connection().changes());
}

/// The fields then show what the columns made of the values.
void UpdatableEmbeddedRecordset::reread(Row& current) {
    const Table* const table = engine_->catalogue().find(foldName(tableName_));
    for (std::size_t index = 0; index < columns_.size(); ++index) {
        if (!changes_.contains(tableColumns_[index])) continue;
        SqliteStatement statement =
            engine_->connection().prepare("SELECT " + quoteName(table->column(tableColumns_[index]).name) +
                                          " FROM " + table->sqlName() + " WHERE _rowid_=?1");
        statement.bind(1, current.number);
        if (statement.step()) current.values[index] = valueAt(statement, 0, columns_[index].type);
    }
}

void UpdatableEmbeddedRecordset::remove() {
    Row& current = row();
    reported(query_, [&] {
        engine_->readAllOpenRows();
        SqliteStatement statement =
            engine_->connection().prepare("DELETE FROM main." + quoteName(tableName_) + " WHERE _rowid_=?1");
        statement.bind(1, current.number);
        statement.step();
        requireOneRow(engine_->connection().changes());
    });
    current.removed = true;
    changes_.clear();
}

void UpdatableEmbeddedRecordset::requireOneRow(std::int64_t changes) const {
    if (changes != 1)
        throw Fault(common::DatabaseErrorCategory::other,
                    "The row of " + tableName_ + " that was being edited is no longer there");
}

} // namespace tellurix::embedded
