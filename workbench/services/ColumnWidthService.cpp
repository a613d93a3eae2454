#include "services/ColumnWidthService.h"

#include "common/StatementText.h"

namespace tellurix::workbench {

int ColumnWidthService::of(const host::TlxVar& session, const std::string& table, const std::string& column) {
    common::StatementText query{"SELECT "};
    query.identifier(column).fixed(" FROM ").identifier(table);
    return session.connection->open(query.text())->textWidth(0);
}

} // namespace tellurix::workbench
