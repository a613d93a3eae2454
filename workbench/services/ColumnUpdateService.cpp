#include "services/ColumnUpdateService.h"

#include "common/StatementText.h"

namespace tellurix::workbench {

void ColumnUpdateService::set(const host::TlxVar& session, const std::string& table,
                              const std::string& column, const std::string& value,
                              const std::string& condition) {
    common::StatementText statement{"UPDATE "};
    statement.identifier(table).fixed(" SET ").identifier(column).fixed(" = ").quotedOrNull(value);
    statement.fixed(" WHERE ").fixed(condition);
    session.connection->execute(statement.text());
}

} // namespace tellurix::workbench
