#include "standin/services/values/SettingsService.h"

#include "module/base/StatementText.h"

namespace tellurix::standin {

std::string SettingsService::text(const host::TlxVar& session, const std::string& name) {
    if (const auto replaced = replaced_.find(name); replaced != replaced_.end()) return replaced->second;
    base::StatementText query{"SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME = "};
    const auto setting = session.connection->open(query.quoted(name).text());
    if (!setting->atEnd()) return setting->text("VALUE");
    // Lists are laid out the same for everybody here, so that the name of a layout says all of it.
    return name.ends_with("_GRID") ? name : std::string{};
}

} // namespace tellurix::standin
