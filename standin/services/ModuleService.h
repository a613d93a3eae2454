#pragma once

#include "module/base/Clock.h"
#include "module/host/services.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// What the module told the host.
struct Notification {
    base::DateTime time;
    std::string code; ///< "1VVM", "2VABR3", "2PVK", …
    std::string type; ///< contract-type code in capitals
};

/// Keeps what the module told the host, for the start page to show. The newest `kept` ones stay.
class ModuleService final : public host::HostModuleService {
public:
    static constexpr std::size_t kept = 200;

    explicit ModuleService(const base::Clock& clock) : clock_(clock) {}

    /// Answers nothing: the two output texts stay as they are.
    void request(const host::TlxVar& session, const std::string& code, const std::string& type,
                 std::string& out1, std::string& out2) override;

    /// The oldest first.
    const std::vector<Notification>& notifications() const { return notifications_; }
    /// Called after each new notification.
    std::function<void(const Notification&)> onNotification;

private:
    const base::Clock& clock_;
    std::vector<Notification> notifications_;
};

} // namespace tellurix::standin
