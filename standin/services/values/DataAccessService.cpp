#include "standin/services/values/DataAccessService.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

std::string DataAccessService::readValue(const host::TlxVar& session, const std::string& column,
                                         const std::string& table, const std::string& condition) {
    base::StatementText query{"SELECT "};
    query.identifier(column).fixed(" FROM ").identifier(table).fixed(" WHERE").fixed(condition);
    const auto row = session.connection->open(query.text());
    return row->atEnd() ? std::string{} : row->text(column);
}

} // namespace tellurix::standin
