#pragma once

#include "module/base/Locale.h"
#include "module/host/services.h"

namespace tellurix::standin {

/// Finds a person by number among those who may be chosen: "PERSONAL_VALID" among all,
/// "PERSONAL_VALID_MANDANTEN" among the clients.
class PersonQueryService final : public host::PersonQueryBuilder {
public:
    explicit PersonQueryService(const base::Locale& locale) : locale_(locale) {}

    /// @throws base::StatementError when the number is none
    /// @throws std::invalid_argument for an unknown filter
    std::string build(const host::TlxVar& session, const std::string& table, const std::string& number,
                      int accessLevel, const std::string& filter) override;
    std::string restriction(const host::TlxVar& session, const std::string& table) override;

private:
    base::Locale locale_;
};

} // namespace tellurix::standin
