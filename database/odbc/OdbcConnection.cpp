#include "database/odbc/OdbcConnection.h"

#include "database/odbc/OdbcRecordset.h"
#include "database/odbc/UpdatableOdbcRecordset.h"
#include "database/odbc/query_text.h"

namespace tellurix::odbc {

base::ExecuteResult OdbcConnection::execute(std::string_view statement) {
    std::string text{statement};
    base::ExecuteResult result;
    if (isPlainQuery(statement)) {
        result.rows = std::make_unique<OdbcRecordset>(session_, std::move(text));
        return result;
    }
    session_->readAllRows();
    return session_->send(text, text, false, [&](const std::unique_ptr<Statement>& running) {
        running->execute();
        // Every statement of a batch can answer, with rows or with a count.
        do {
            const std::vector<Column> columns = running->columns();
            if (columns.empty()) {
                if (const std::int64_t count = running->rowCount(); count >= 0) result.rowsAffected = count;
                continue;
            }
            result.rows = std::make_unique<OdbcRecordset>(text, columns, running->rows(columns));
        } while (running->nextAnswer());
        return std::move(result);
    });
}

std::unique_ptr<base::UpdatableRecordset> OdbcConnection::openUpdatable(std::string_view query) {
    return std::make_unique<UpdatableOdbcRecordset>(session_, std::string(query));
}

} // namespace tellurix::odbc
