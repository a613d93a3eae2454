#include "database/odbc/Statement.h"

#include "database/servers/server_values.h"

#include <array>

namespace tellurix::odbc {

namespace {

constexpr std::size_t charactersAtATime = 4096;

} // namespace

Statement::Statement(std::shared_ptr<Link> link, std::string_view text, std::string_view told,
                     std::chrono::seconds answerTime)
    : link_(std::move(link)), text_(text), told_(told) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, link_->handle(), &handle_)))
        throw base::DatabaseError(base::DatabaseErrorCategory::connection,
                                  link_->report(SQL_HANDLE_DBC, link_->handle()).text, told_);
    if (answerTime.count() > 0)
        SQLSetStmtAttrW(handle_, SQL_ATTR_QUERY_TIMEOUT, attribute(static_cast<SQLULEN>(answerTime.count())),
                        0);
}

Statement::~Statement() {
    SQLFreeHandle(SQL_HANDLE_STMT, handle_);
}

void Statement::check(SQLRETURN result) {
    if (SQL_SUCCEEDED(result)) return;
    const Report report = link_->report(SQL_HANDLE_STMT, handle_);
    base::DatabaseError error = databaseError(report, told_);
    // Some drivers first say no more than that something has happened.
    if (error.category() != base::DatabaseErrorCategory::connection && link_->isLost())
        throw base::DatabaseError(base::DatabaseErrorCategory::connection, error.what(), told_,
                                  base::DatabaseError::noPosition, report.number, report.state);
    throw error;
}

void Statement::execute(std::vector<Parameter>& parameters) {
    for (std::size_t index = 0; index < parameters.size(); ++index)
        check(parameters[index].bindTo(handle_, static_cast<SQLUSMALLINT>(index + 1)));
    // Braces are sequences of the driver's to it, and plain characters to the server.
    SQLSetStmtAttrW(handle_, SQL_ATTR_NOSCAN, attribute(SQL_NOSCAN_ON), 0);
    std::u16string text = wide(text_);
    const SQLRETURN result = SQLExecDirectW(handle_, pointer(text), static_cast<SQLINTEGER>(text.size()));
    nothingFound_ = result == SQL_NO_DATA;
    if (!nothingFound_) check(result);
}

void Statement::execute() {
    std::vector<Parameter> none;
    execute(none);
}

std::vector<Column> Statement::describe() {
    std::u16string text = wide(text_);
    check(SQLPrepareW(handle_, pointer(text), static_cast<SQLINTEGER>(text.size())));
    return columns();
}

std::vector<Column> Statement::columns() {
    SQLSMALLINT count = 0;
    if (nothingFound_) return {};
    check(SQLNumResultCols(handle_, &count));
    std::vector<Column> columns(static_cast<std::size_t>(count));
    for (std::size_t index = 0; index < columns.size(); ++index) {
        Column& column = columns[index];
        std::u16string name(256, u'\0');
        SQLSMALLINT length = 0;
        SQLSMALLINT nullable = 0;
        check(SQLDescribeColW(handle_, static_cast<SQLUSMALLINT>(index + 1), pointer(name), shortLength(name),
                              &length, &column.sqlType, &column.size, &column.scale, &nullable));
        column.name = narrow(std::u16string_view{name}.substr(0, static_cast<std::size_t>(length)));
    }
    return columns;
}

std::int64_t Statement::rowCount() {
    SQLLEN count = -1;
    check(SQLRowCount(handle_, &count));
    return count;
}

bool Statement::fetch() {
    const SQLRETURN result = SQLFetch(handle_);
    if (result == SQL_NO_DATA) return false;
    check(result);
    return true;
}

bool Statement::nextAnswer() {
    const SQLRETURN result = SQLMoreResults(handle_);
    nothingFound_ = false;
    if (result == SQL_NO_DATA) return false;
    check(result);
    return true;
}

std::vector<base::Value> Statement::row(const std::vector<Column>& columns) {
    std::vector<base::Value> values;
    values.reserve(columns.size());
    for (const Column& column : columns)
        values.push_back(value(static_cast<SQLUSMALLINT>(values.size() + 1), column));
    return values;
}

std::vector<std::vector<base::Value>> Statement::rows(const std::vector<Column>& columns) {
    std::vector<std::vector<base::Value>> rows;
    while (fetch())
        rows.push_back(row(columns));
    return rows;
}

base::Value Statement::firstField() {
    const std::vector<Column> answered = columns();
    return fetch() ? row(answered).at(0) : base::Value{};
}

base::Value Statement::value(SQLUSMALLINT number, const Column& column) {
    SQLLEN length = 0;
    const auto read = [&](SQLSMALLINT type, SQLPOINTER data, std::size_t size) {
        check(SQLGetData(handle_, number, type, data, static_cast<SQLLEN>(size), &length));
        return length != SQL_NULL_DATA;
    };
    using base::FieldType;
    switch (column.type()) {
    case FieldType::flag: {
        SQLCHAR flag = 0;
        if (read(SQL_C_BIT, &flag, sizeof(flag))) return flag != 0;
        return base::Null{};
    }
    case FieldType::tinyInteger:
    case FieldType::smallInteger:
    case FieldType::integer:
    case FieldType::bigInteger: {
        SQLBIGINT integer = 0;
        if (read(SQL_C_SBIGINT, &integer, sizeof(integer))) return std::int64_t{integer};
        return base::Null{};
    }
    case FieldType::decimal: {
        std::array<char, 64> digits{};
        if (read(SQL_C_CHAR, digits.data(), digits.size())) return decimalFrom(digits.data(), told_);
        return base::Null{};
    }
    case FieldType::floating: {
        if (column.sqlType == SQL_REAL) {
            SQLREAL single = 0;
            if (read(SQL_C_FLOAT, &single, sizeof(single))) return servers::doubleFrom(single);
            return base::Null{};
        }
        SQLDOUBLE floating = 0;
        if (read(SQL_C_DOUBLE, &floating, sizeof(floating))) return floating;
        return base::Null{};
    }
    case FieldType::dateTime: {
        SQL_TIMESTAMP_STRUCT moment{};
        if (read(SQL_C_TYPE_TIMESTAMP, &moment, sizeof(moment))) return momentFrom(moment);
        return base::Null{};
    }
    case FieldType::text:
        break;
    }
    return text(number);
}

/// A long one comes in pieces, each closed by a character that does not belong to it.
base::Value Statement::text(SQLUSMALLINT number) {
    part_.resize(charactersAtATime);
    std::u16string whole;
    for (;;) {
        SQLLEN length = 0;
        const SQLRETURN result = SQLGetData(handle_, number, SQL_C_WCHAR, part_.data(),
                                            static_cast<SQLLEN>(part_.size() * sizeof(SQLWCHAR)), &length);
        if (result == SQL_NO_DATA) break;
        check(result);
        if (length == SQL_NULL_DATA) return base::Null{};
        const std::size_t rest =
            length == SQL_NO_TOTAL ? part_.size() : static_cast<std::size_t>(length) / sizeof(SQLWCHAR);
        const bool more = rest >= part_.size();
        whole.append(part_, 0, more ? part_.size() - 1 : rest);
        if (!more || result == SQL_SUCCESS) break;
    }
    return narrow(whole);
}

} // namespace tellurix::odbc
