#pragma once

#include "host/services.h"

#include <map>
#include <string>

namespace tellurix::workbench {

/// Named settings in the table WORKBENCH_SETTING, the same for all users.
class SettingsService final : public host::NamedSettings {
public:
    /// Settings that count instead of those in the table, as long as this program runs.
    void replace(std::map<std::string, std::string> settings) { replaced_ = std::move(settings); }

    std::string text(const host::TlxVar& session, const std::string& name) override;

private:
    std::map<std::string, std::string> replaced_;
};

} // namespace tellurix::workbench
