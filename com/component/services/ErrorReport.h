#pragma once

#include "com/component/services/HostClass.h"
#include "module/ui/Display.h"

namespace tellurix::windows {

/// The host's error handling. When even that fails, the error stands in a plain message.
class ErrorReport final : public ui::ErrorHandling {
public:
    explicit ErrorReport(ui::Display& display) : display_(display) {}

    /// The session of the call that is running, or null.
    void setSession(const host::TlxVar* session) { session_ = session; }
    void report(const std::exception& error) override;

private:
    ui::Display& display_;
    const host::TlxVar* session_ = nullptr;
    HostClass object_{"HostErrorReport"};
};

} // namespace tellurix::windows
