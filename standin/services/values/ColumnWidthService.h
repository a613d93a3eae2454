#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Asks the database, by a query of the column of which no row is fetched.
class ColumnWidthService final : public host::ColumnWidth {
public:
    int of(const host::TlxVar& session, const std::string& table, const std::string& column) override;
};

} // namespace tellurix::standin
