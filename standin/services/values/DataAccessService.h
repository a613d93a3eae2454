#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Reads one value with a query of its own.
class DataAccessService final : public host::HostDataAccess {
public:
    std::string readValue(const host::TlxVar& session, const std::string& column, const std::string& table,
                          const std::string& condition) override;
};

} // namespace tellurix::standin
