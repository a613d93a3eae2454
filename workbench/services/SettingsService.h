#pragma once

#include "host/services.h"

namespace tellurix::workbench {

/// Named settings in the table WORKBENCH_SETTING, the same for all users.
class SettingsService final : public host::NamedSettings {
public:
    std::string text(const host::TlxVar& session, const std::string& name) override;
};

} // namespace tellurix::workbench
