#pragma once

#include "common/Locale.h"
#include "host/services.h"

namespace tellurix::workbench {

/// Finds a person by number among those who may be chosen: "PERSONAL_VALID" among all,
/// "PERSONAL_VALID_MANDANTEN" among the clients.
class PersonQueryService final : public host::PersonQueryBuilder {
public:
    explicit PersonQueryService(const common::Locale& locale) : locale_(locale) {}

    /// @throws common::StatementError when the number is none
    /// @throws std::invalid_argument for an unknown filter
    std::string build(const host::TlxVar& session, const std::string& table, const std::string& number,
                      int accessLevel, const std::string& filter) override;

private:
    common::Locale locale_;
};

} // namespace tellurix::workbench
