#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Sets a column with one statement; apostrophes in the value are doubled.
class ColumnUpdateService final : public host::ColumnUpdate {
public:
    void set(const host::TlxVar& session, const std::string& table, const std::string& column,
             const std::string& value, const std::string& condition) override;
};

} // namespace tellurix::standin
