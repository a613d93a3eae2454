#pragma once

#include "module/host/services.h"

#include <map>
#include <string>

namespace tellurix::standin {

/// Named settings in the table WORKBENCH_SETTING, the same for all users.
class SettingsService final : public host::NamedSettings {
public:
    /// Lets a value count instead of the one in the table, as long as this program runs.
    void replace(const std::string& name, const std::string& value) { replaced_[name] = value; }

    std::string text(const host::TlxVar& session, const std::string& name) override;

private:
    std::map<std::string, std::string> replaced_;
};

} // namespace tellurix::standin
