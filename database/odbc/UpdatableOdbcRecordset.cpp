#include "database/odbc/UpdatableOdbcRecordset.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::odbc {

using base::DatabaseError;
using base::DatabaseErrorCategory;

UpdatableOdbcRecordset::UpdatableOdbcRecordset(std::shared_ptr<Session> session, std::string query)
    : session_(std::move(session)), query_(std::move(query)) {
    const auto edited = EditedQuery::read(query_);
    if (!edited)
        throw DatabaseError(DatabaseErrorCategory::syntax,
                            "Only a query on one table can be opened for editing", query_);
    table_ = edited->table;
    session_->readAllRows();
    description_ = TableDescription::of(*session_, *edited, query_);
    quote_ = session_->link().textInfo(SQL_IDENTIFIER_QUOTE_CHAR);
    readRows(edited->endOfList);
    if (description_->key.empty())
        throw DatabaseError(DatabaseErrorCategory::other,
                            "The rows of " + table_ + " cannot be edited: the table has no key", query_);
}

/// The key is asked for under names of its own: one that the query's columns have already would be ambiguous
/// in its ORDER BY.
void UpdatableOdbcRecordset::readRows(std::size_t endOfList) {
    std::string keys;
    for (std::size_t index = 0; index < description_->key.size(); ++index)
        keys += ", " + quoted(description_->key[index]) + " AS " +
                quoted("edited_key_" + std::to_string(index + 1));
    std::string text = query_;
    text.insert(endOfList, keys + " ");
    session_->send(text, query_, true, [this](const std::unique_ptr<Statement>& statement) {
        statement->execute();
        columns_ = statement->columns();
        rows_.clear();
        while (statement->fetch()) {
            Row row{statement->row(columns_), {}};
            const auto key = row.values.end() - static_cast<std::ptrdiff_t>(description_->key.size());
            row.key.assign(key, row.values.end());
            row.values.erase(key, row.values.end());
            rows_.push_back(std::move(row));
        }
    });
    columns_.resize(columns_.size() - description_->key.size());
}

std::string UpdatableOdbcRecordset::quoted(const std::string& name) const {
    return quote_ + base::replaceAll(name, quote_, quote_ + quote_) + quote_;
}

UpdatableOdbcRecordset::Row& UpdatableOdbcRecordset::row() {
    if (atEnd() || rows_[current_].removed)
        throw DatabaseError(DatabaseErrorCategory::other, "There is no current row", query_);
    return rows_[current_];
}

void UpdatableOdbcRecordset::moveNext() {
    if (atEnd()) row();
    changes_.clear();
    ++current_;
}

base::Value UpdatableOdbcRecordset::field(std::size_t index) {
    return row().values.at(index);
}

void UpdatableOdbcRecordset::setField(std::string_view name, base::Value value) {
    row();
    const std::size_t index = fieldIndex(name);
    if (description_->column(columns_[index].name) == nullptr)
        throw DatabaseError(DatabaseErrorCategory::unknownName,
                            "The field " + std::string(name) + " is no column of the table " + table_,
                            query_);
    changes_[index] = std::move(value);
}

std::string UpdatableOdbcRecordset::whereRow(const Row& row, std::vector<Parameter>& parameters) const {
    std::string text = " WHERE ";
    for (std::size_t index = 0; index < description_->key.size(); ++index) {
        const std::string& name = description_->key[index];
        text += (index == 0 ? "" : " AND ") + quoted(name) + " = ?";
        parameters.emplace_back(row.key[index], *description_->column(name));
    }
    return text;
}

std::vector<base::Value> UpdatableOdbcRecordset::presentValues(const Row& row,
                                                               const std::vector<const Column*>& columns) {
    std::string text = "SELECT ";
    for (const Column* column : columns)
        text += (column == columns.front() ? "" : ", ") + quoted(column->name);
    std::vector<Parameter> parameters;
    text += " FROM " + table_ + whereRow(row, parameters);
    return session_->send(text, query_, true, [&](const std::unique_ptr<Statement>& statement) {
        statement->execute(parameters);
        const std::vector<Column> found = statement->columns();
        return statement->fetch() ? statement->row(found) : std::vector<base::Value>{};
    });
}

std::int64_t UpdatableOdbcRecordset::write(const std::string& text, std::vector<Parameter>& parameters) {
    return session_->send(text, query_, false, [&](const std::unique_ptr<Statement>& statement) {
        statement->execute(parameters);
        std::int64_t count = statement->rowCount();
        while (statement->nextAnswer())
            count = std::max(count, statement->rowCount());
        return count;
    });
}

/// The row is read right before it is written: what a colleague wrote since must not be covered. A comparison
/// in the UPDATE itself would not do, because servers compare texts, dates and floating-point numbers more
/// loosely, or more strictly, than we can tell from here.
void UpdatableOdbcRecordset::update() {
    Row& edited = row();
    if (changes_.empty()) return;
    session_->readAllRows();
    std::vector<const Column*> written;
    std::vector<Parameter> parameters;
    std::string text = "UPDATE " + table_ + " SET ";
    for (const auto& [index, value] : changes_) {
        const Column& column = *description_->column(columns_[index].name);
        text += (written.empty() ? "" : ", ") + quoted(column.name) + " = ?";
        written.push_back(&column);
        parameters.emplace_back(value, column);
    }
    const std::vector<base::Value> before = presentValues(edited, written);
    if (before.empty()) failGone();
    auto present = before.begin();
    for (const auto& [index, value] : changes_)
        if (*present++ != edited.values[index])
            throw DatabaseError(
                DatabaseErrorCategory::other,
                "The row of " + table_ +
                    " that was being edited was changed by somebody else: " + columns_[index].name,
                query_);
    text += whereRow(edited, parameters);
    // Where the session does not count, the row was there a moment ago.
    if (write(text, parameters) == 0) failGone();
    for (std::size_t index = 0; index < description_->key.size(); ++index)
        for (const auto& [field, value] : changes_)
            if (description_->column(columns_[field].name) == description_->column(description_->key[index]))
                edited.key[index] = value;
    // The fields then show what the columns made of the values.
    const std::vector<base::Value> after = presentValues(edited, written);
    for (auto change = changes_.begin(); change != changes_.end() && !after.empty(); ++change)
        edited.values[change->first] =
            after[static_cast<std::size_t>(std::distance(changes_.begin(), change))];
    changes_.clear();
}

void UpdatableOdbcRecordset::remove() {
    Row& removed = row();
    session_->readAllRows();
    if (presentValues(removed, {description_->column(description_->key.front())}).empty()) failGone();
    std::vector<Parameter> parameters;
    const std::string text = "DELETE FROM " + table_ + whereRow(removed, parameters);
    if (write(text, parameters) == 0) failGone();
    removed.removed = true;
    changes_.clear();
}

void UpdatableOdbcRecordset::failGone() const {
    throw DatabaseError(DatabaseErrorCategory::other,
                        "The row of " + table_ + " that was being edited is no longer there", query_);
}

} // namespace tellurix::odbc
