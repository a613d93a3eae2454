#include "standin/services/ModuleService.h"

namespace tellurix::standin {

void ModuleService::request(const host::TlxVar& /*session*/, const std::string& code, const std::string& type,
                            std::string& /*out1*/, std::string& /*out2*/) {
    if (notifications_.size() == kept) notifications_.erase(notifications_.begin());
    notifications_.push_back({clock_.now(), code, type});
    if (onNotification) onNotification(notifications_.back());
}

} // namespace tellurix::standin
