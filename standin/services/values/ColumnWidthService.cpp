#include "standin/services/values/ColumnWidthService.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

int ColumnWidthService::of(const host::TlxVar& session, const std::string& table, const std::string& column) {
    base::StatementText query{"SELECT "};
    query.identifier(column).fixed(" FROM ").identifier(table);
    // Not opened, which reads all rows: the column alone is looked at.
    return session.connection->execute(query.text()).rows->textWidth(0);
}

} // namespace tellurix::standin
