#include "database/embedded/execution/EmbeddedRecordset.h"

#include "database/embedded/execution/reported.h"

#include <algorithm>

namespace tellurix::embedded {

EmbeddedRecordset::EmbeddedRecordset(std::shared_ptr<Engine> engine, std::shared_ptr<Batch> batch, Task task,
                                     Frame frame)
    : engine_(std::move(engine)),
      batch_(std::move(batch)),
      task_(std::move(task)),
      frame_(std::move(frame)),
      columns_(batch_->compiled(task_.node).translation.columns) {
    engine_->opened(*this);
}

EmbeddedRecordset::~EmbeddedRecordset() {
    finish();
}

bool EmbeddedRecordset::atEnd() {
    if (state_ == State::notStarted) reported(batch_->text(), [&] { start(); });
    if (failure_) std::rethrow_exception(failure_);
    return state_ == State::finished;
}

void EmbeddedRecordset::requireRow() {
    if (atEnd())
        throw base::DatabaseError(base::DatabaseErrorCategory::other, "There is no current row",
                                  batch_->text());
}

void EmbeddedRecordset::moveNext() {
    requireRow();
    if (state_ == State::reading)
        reported(batch_->text(), [&] { advance(); });
    else if (++row_ == rows_.size())
        state_ = State::finished;
}

base::Value EmbeddedRecordset::field(std::size_t index) {
    requireRow();
    const Type& type = columns_->at(index).type;
    if (state_ == State::inMemory) return rows_[row_][index];
    return reported(batch_->text(),
                    [&] { return valueAt(running_.statement, static_cast<int>(index), type); });
}

void EmbeddedRecordset::start() {
    // Even a query that fails is over; it must not run again.
    state_ = State::finished;
    running_ = engine_->start(*batch_, task_, frame_);
    requireSameColumns();
    if (running_.statement)
        state_ = State::reading;
    else
        engine_->closed(*this);
}

/// The types were told when the query was opened; between that and its first row another
/// connection may have made the table anew.
void EmbeddedRecordset::requireSameColumns() const {
    const auto& columns = *batch_->compiled(task_.node).translation.columns;
    const bool same = std::equal(columns.begin(), columns.end(), columns_->begin(), columns_->end(),
                                 [](const auto& left, const auto& right) { return left.type == right.type; });
    if (!same)
        throw Fault(base::DatabaseErrorCategory::other,
                    "The table was changed by another session before its rows were read");
}

void EmbeddedRecordset::advance() {
    bool more = false;
    try {
        more = running_.statement.step();
    } catch (...) {
        finish();
        throw;
    }
    if (!more) finish();
}

void EmbeddedRecordset::finish() {
    if (running_.statement) engine_->giveBack(std::move(running_));
    running_ = {};
    engine_->closed(*this);
    state_ = State::finished;
}

void EmbeddedRecordset::readRemainingRows() noexcept {
    try {
        if (state_ == State::notStarted) reported(batch_->text(), [&] { start(); });
        while (state_ == State::reading) {
            std::vector<base::Value> row;
            row.reserve(columns_->size());
            for (std::size_t index = 0; index < columns_->size(); ++index)
                row.push_back(field(index));
            rows_.push_back(std::move(row));
            reported(batch_->text(), [&] { advance(); });
        }
    } catch (...) {
        finish();
        failure_ = std::current_exception();
        return;
    }
    if (!rows_.empty()) state_ = State::inMemory;
}

} // namespace tellurix::embedded
