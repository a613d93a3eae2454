#pragma once

#include "database/embedded/execution/Engine.h"
#include "module/base/database.h"

#include <exception>
#include <memory>
#include <vector>

namespace tellurix::embedded {

/// The rows of a query. Nothing runs before the first row is asked for. Before its connection does
/// something else the rest of a query that has begun is read into memory, before a write that of
/// one that has not begun too: the rows are those of the query's moment.
class EmbeddedRecordset final : public base::Recordset {
public:
    /// @param task the query, already compiled
    EmbeddedRecordset(std::shared_ptr<Engine> engine, std::shared_ptr<Batch> batch, Task task, Frame frame);
    ~EmbeddedRecordset() override;
    EmbeddedRecordset(const EmbeddedRecordset&) = delete;
    EmbeddedRecordset& operator=(const EmbeddedRecordset&) = delete;

    std::size_t fieldCount() const override { return columns_->size(); }
    std::string fieldName(std::size_t index) const override { return columns_->at(index).name; }
    base::FieldType fieldType(std::size_t index) const override {
        return fieldTypeOf(columns_->at(index).type);
    }
    int textWidth(std::size_t index) const override { return textWidthOf(columns_->at(index).type); }

    bool atEnd() override;
    void moveNext() override;
    base::Value field(std::size_t index) override;

    /// Whether rows are being fetched, which holds a moment of the database.
    bool isReading() const { return state_ == State::reading; }
    /// Takes the remaining rows into memory. An error is kept until a row is asked for.
    void readRemainingRows() noexcept;

private:
    enum class State { notStarted, reading, inMemory, finished };

    void start();
    void advance();
    void finish();
    void requireRow();
    void requireSameColumns() const;

    std::shared_ptr<Engine> engine_;
    std::shared_ptr<Batch> batch_;
    Task task_;
    Frame frame_;
    std::shared_ptr<const std::vector<Translation::Column>> columns_;
    State state_ = State::notStarted;
    Running running_;
    std::vector<std::vector<base::Value>> rows_;
    std::size_t row_ = 0;
    std::exception_ptr failure_;
};

} // namespace tellurix::embedded
