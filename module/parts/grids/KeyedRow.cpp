#include "module/parts/grids/KeyedRow.h"

#include <algorithm>

namespace tellurix::parts {

namespace {

std::shared_ptr<const std::vector<std::string>> namesOf(const base::Recordset& row) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < row.fieldCount(); ++i)
        names.push_back(row.fieldName(i));
    return std::make_shared<const std::vector<std::string>>(std::move(names));
}

} // namespace

KeyedRow::KeyedRow(std::int64_t key)
    : key_(key), names_(std::make_shared<const std::vector<std::string>>()) {}

KeyedRow::KeyedRow(base::Recordset& row, std::string_view keyField)
    : KeyedRow(row, row.integer(keyField), namesOf(row)) {}

KeyedRow::KeyedRow(base::Recordset& row, std::int64_t key, Names names)
    : key_(key), names_(std::move(names)) {
    for (std::size_t i = 0; i < names_->size(); ++i)
        values_.push_back(row.field(i));
    changedBy_.resize(values_.size());
}

void KeyedRow::set(std::string_view name, base::Value value) {
    const std::size_t field = fieldIndex(name);
    if (read_.empty()) read_ = values_;
    values_[field] = std::move(value);
    changedBy_[field] = ui::ChangedBy::user;
}

const base::Value& KeyedRow::asRead(std::string_view name) const {
    return (read_.empty() ? values_ : read_)[fieldIndex(name)];
}

void KeyedRow::refresh(std::string_view name, base::Value value) {
    const std::size_t field = fieldIndex(name);
    if (!read_.empty()) read_[field] = value;
    values_[field] = std::move(value);
    changedBy_[field] = ui::ChangedBy::colleague;
}

void KeyedRow::rebase(std::string_view name, base::Value value) {
    const std::size_t field = fieldIndex(name);
    if (read_.empty()) read_ = values_;
    read_[field] = std::move(value);
}

void KeyedRow::settle() {
    read_.clear();
    changedBy_.assign(changedBy_.size(), ui::ChangedBy::nobody);
}

bool KeyedRow::touched(std::string_view name) const {
    return changedBy_[fieldIndex(name)] == ui::ChangedBy::user;
}

bool KeyedRow::touched() const {
    return std::ranges::find(changedBy_, ui::ChangedBy::user) != changedBy_.end();
}

ui::ChangedBy KeyedRow::changedBy(std::string_view name) const {
    return changedBy_[fieldIndex(name)];
}

void KeyedRow::setChangedBy(std::string_view name, ui::ChangedBy who) {
    changedBy_[fieldIndex(name)] = who;
}

KeyedRows KeyedRows::read(base::Connection& connection, std::string_view query, std::string_view keyField,
                          std::size_t limit) {
    const auto row = connection.open(query);
    const std::size_t key = row->fieldIndex(keyField);
    const auto names = namesOf(*row);
    KeyedRows read;
    for (; !row->atEnd(); row->moveNext()) {
        if (read.rows.size() == limit) {
            read.more = true;
            break;
        }
        read.rows.push_back(KeyedRow{*row, row->integer(key), names});
    }
    return read;
}

} // namespace tellurix::parts
