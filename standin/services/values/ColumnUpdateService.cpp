#include "standin/services/values/ColumnUpdateService.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

void ColumnUpdateService::set(const host::TlxVar& session, const std::string& table,
                              const std::string& column, const std::string& value,
                              const std::string& condition) {
    base::StatementText statement{"UPDATE "};
    statement.identifier(table).fixed(" SET ").identifier(column).fixed(" = ").quotedOrNull(value);
    statement.fixed(" WHERE ").fixed(condition);
    session.connection->execute(statement.text());
}

} // namespace tellurix::standin
