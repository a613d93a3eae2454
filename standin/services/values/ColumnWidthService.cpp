#include "standin/services/values/ColumnWidthService.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

int ColumnWidthService::of(const host::TlxVar& session, const std::string& table, const std::string& column) {
    base::StatementText query{"SELECT "};
    query.identifier(column).fixed(" FROM ").identifier(table);
    return session.connection->open(query.text())->textWidth(0);
}

} // namespace tellurix::standin
