#pragma once

#include "database/embedded/execution/Engine.h"
#include "module/base/database.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tellurix::embedded {

/// The rows of a query on one table, for editing in place. All rows are read when it is opened;
/// each is found again by its number in the table, so a changed key does no harm.
class UpdatableEmbeddedRecordset final : public base::UpdatableRecordset {
public:
    UpdatableEmbeddedRecordset(std::shared_ptr<Engine> engine, std::string_view query);

    std::size_t fieldCount() const override { return columns_->size(); }
    std::string fieldName(std::size_t index) const override { return columns_->at(index).name; }
    base::FieldType fieldType(std::size_t index) const override {
        return fieldTypeOf(columns_->at(index).type);
    }
    int textWidth(std::size_t index) const override { return textWidthOf(columns_->at(index).type); }

    bool atEnd() override { return current_ >= rows_.size(); }
    void moveNext() override;
    base::Value field(std::size_t index) override;

    /// The value is converted and checked as by an UPDATE, at the latest in `update`.
    void setField(std::string_view name, base::Value value) override;
    void update() override;
    void remove() override;

private:
    struct Row {
        std::int64_t number;
        std::vector<base::Value> values;
        bool removed = false;
    };

    void readRows(const SelectStatement& select);
    Row& row();
    void writeChanges(Row& row);
    void requireRow(bool found) const;

    std::shared_ptr<Engine> engine_;
    std::shared_ptr<Batch> batch_;
    std::string tableName_;
    std::shared_ptr<const std::vector<Translation::Column>> columns_;
    std::vector<int> tableColumns_; ///< the table's column of each field
    std::vector<Row> rows_;
    std::size_t current_ = 0;
    std::map<int, base::Value> changes_; ///< by the table's column
};

} // namespace tellurix::embedded
