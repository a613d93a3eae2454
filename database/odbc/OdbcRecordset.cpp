#include "database/odbc/OdbcRecordset.h"

#include <algorithm>

namespace tellurix::odbc {

OdbcRecordset::OdbcRecordset(std::shared_ptr<Session> session, std::string query)
    : session_(std::move(session)), text_(std::move(query)) {
    session_->opened(*this);
}

OdbcRecordset::OdbcRecordset(std::string text, std::vector<Column> columns,
                             std::vector<std::vector<base::Value>> rows)
    : text_(std::move(text)),
      state_(rows.empty() ? State::finished : State::inMemory),
      columns_(std::move(columns)),
      described_(true),
      rows_(std::move(rows)) {}

OdbcRecordset::~OdbcRecordset() {
    if (session_) session_->closed(*this);
}

/// A driver that cannot describe a text before it runs has its columns with its rows.
const std::vector<Column>& OdbcRecordset::columns() const {
    if (described_) return columns_;
    columns_ = session_->send(text_, text_, true, [](const std::unique_ptr<Statement>& statement) {
        return statement->describe();
    });
    described_ = !columns_.empty();
    if (!described_) const_cast<OdbcRecordset*>(this)->start();
    return columns_;
}

bool OdbcRecordset::atEnd() {
    if (state_ == State::notSent) start();
    if (failure_) std::rethrow_exception(failure_);
    return state_ == State::finished;
}

void OdbcRecordset::requireRow() {
    if (atEnd())
        throw base::DatabaseError(base::DatabaseErrorCategory::other, "There is no current row", text_);
}

void OdbcRecordset::moveNext() {
    requireRow();
    if (state_ == State::reading)
        advance();
    else if (++row_ == rows_.size())
        state_ = State::finished;
}

base::Value OdbcRecordset::field(std::size_t index) {
    requireRow();
    return state_ == State::reading ? current_.at(index) : rows_[row_].at(index);
}

void OdbcRecordset::start() {
    // Even a query that fails is over; it must not run again.
    state_ = State::finished;
    statement_ = session_->send(text_, text_, true, [this](std::unique_ptr<Statement> statement) {
        statement->execute();
        takeColumns(statement->columns());
        if (statement->fetch()) {
            current_ = statement->row(columns_);
            state_ = State::reading;
        }
        return statement;
    });
    if (state_ == State::finished) finish();
}

/// Their types were perhaps told before the query ran; between that and its first row another connection may
/// have made the table anew.
void OdbcRecordset::takeColumns(std::vector<Column> columns) {
    const bool same = std::ranges::equal(columns, columns_, {}, &Column::type, &Column::type);
    if (described_ && !same)
        throw base::DatabaseError(base::DatabaseErrorCategory::other,
                                  "The table was changed by another session before its rows were read",
                                  text_);
    columns_ = std::move(columns);
    described_ = true;
}

void OdbcRecordset::advance() {
    try {
        if (statement_->fetch()) {
            current_ = statement_->row(columns_);
            return;
        }
        // What the server noticed behind the last row.
        while (statement_->nextAnswer()) {
        }
    } catch (const base::DatabaseError& error) {
        finish();
        if (error.category() == base::DatabaseErrorCategory::connection) throw session_->lost(error, true);
        throw;
    }
    finish();
}

void OdbcRecordset::finish() {
    state_ = State::finished;
    statement_.reset();
    session_->closed(*this);
}

void OdbcRecordset::readRemainingRows() noexcept {
    try {
        if (state_ == State::notSent) start();
        while (state_ == State::reading) {
            rows_.push_back(std::move(current_));
            advance();
        }
    } catch (...) {
        state_ = State::finished;
        failure_ = std::current_exception();
        session_->closed(*this);
        return;
    }
    if (!rows_.empty()) state_ = State::inMemory;
}

} // namespace tellurix::odbc
