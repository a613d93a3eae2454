#pragma once

#include "database/odbc/Session.h"
#include "database/odbc/TableDescription.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tellurix::odbc {

/// The rows of a query on one table, for editing in place. All rows are read when it is opened, together with
/// the key of each, by which it is written with statements of the adapter's own: drivers offer cursors
/// for this that servers refuse.
class UpdatableOdbcRecordset final : public base::UpdatableRecordset {
public:
    /// @throws base::DatabaseError also for a query on several tables (syntax) or on one without a key
    /// (other)
    UpdatableOdbcRecordset(std::shared_ptr<Session> session, std::string query);

    std::size_t fieldCount() const override { return columns_.size(); }
    std::string fieldName(std::size_t index) const override { return columns_.at(index).name; }
    base::FieldType fieldType(std::size_t index) const override { return columns_.at(index).type(); }
    int textWidth(std::size_t index) const override { return columns_.at(index).textWidth(); }

    bool atEnd() override { return current_ >= rows_.size(); }
    void moveNext() override;
    base::Value field(std::size_t index) override;

    void setField(std::string_view name, base::Value value) override;
    /// @throws base::DatabaseError (other) when the row is gone, or one of its fields that were set is not
    ///         what it was when it was read
    void update() override;
    void remove() override;

private:
    struct Row {
        std::vector<base::Value> values;
        std::vector<base::Value> key;
        bool removed = false;
    };

    void readRows(std::size_t endOfList);
    Row& row();
    std::string quoted(const std::string& name) const;
    /// What the row holds now in the table, in the order of these columns; nothing when it is gone.
    std::vector<base::Value> presentValues(const Row& row, const std::vector<const Column*>& columns);
    /// " WHERE key = ? AND …", and its parameters behind the others.
    std::string whereRow(const Row& row, std::vector<Parameter>& parameters) const;
    std::int64_t write(const std::string& text, std::vector<Parameter>& parameters);
    [[noreturn]] void failGone() const;

    std::shared_ptr<Session> session_;
    std::string query_;
    std::string table_; ///< as the query writes it
    std::shared_ptr<const TableDescription> description_;
    std::string quote_;
    std::vector<Column> columns_;
    std::vector<Row> rows_;
    std::size_t current_ = 0;
    std::map<std::size_t, base::Value> changes_; ///< by field
};

} // namespace tellurix::odbc
