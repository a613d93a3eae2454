#pragma once

#include "database/odbc/Session.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace tellurix::odbc {

/// The rows of an answer. A plain query is sent when its first row is asked for, or, for its columns alone,
/// without running it. Before the connection sends something else the rest of the rows is read into
/// memory, before a text that may write that of a query that nobody has asked for too: the rows are
/// those of the query's moment.
class OdbcRecordset final : public base::Recordset {
public:
    /// A plain query that has not been sent.
    OdbcRecordset(std::shared_ptr<Session> session, std::string query);
    /// Rows that were read.
    OdbcRecordset(std::string text, std::vector<Column> columns, std::vector<std::vector<base::Value>> rows);
    ~OdbcRecordset() override;
    OdbcRecordset(const OdbcRecordset&) = delete;
    OdbcRecordset& operator=(const OdbcRecordset&) = delete;

    std::size_t fieldCount() const override { return columns().size(); }
    std::string fieldName(std::size_t index) const override { return columns().at(index).name; }
    base::FieldType fieldType(std::size_t index) const override { return columns().at(index).type(); }
    int textWidth(std::size_t index) const override { return columns().at(index).textWidth(); }

    bool atEnd() override;
    void moveNext() override;
    base::Value field(std::size_t index) override;

    /// Whether rows are under way, which keeps the connection from sending anything else.
    bool isReading() const { return state_ == State::reading; }
    /// Takes the remaining rows into memory. An error is kept until a row is asked for.
    void readRemainingRows() noexcept;

private:
    enum class State { notSent, reading, inMemory, finished };

    const std::vector<Column>& columns() const;
    void start();
    void takeColumns(std::vector<Column> columns);
    void advance();
    void finish();
    void requireRow();

    std::shared_ptr<Session> session_;
    std::string text_;
    State state_ = State::notSent;
    /// Also asked for by constant operations, which may have to ask the server first.
    mutable std::vector<Column> columns_;
    mutable bool described_ = false;
    std::unique_ptr<Statement> statement_;
    std::vector<base::Value> current_;
    std::vector<std::vector<base::Value>> rows_;
    std::size_t row_ = 0;
    std::exception_ptr failure_;
};

} // namespace tellurix::odbc
