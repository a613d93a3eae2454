#pragma once

#include "module/ui/Display.h"

namespace tellurix::ui {

/// Where a display's errors inside an event go: to the host's error handling or, without one, to the
/// user as a message.
class DisplayErrors final : public ErrorHandling {
public:
    explicit DisplayErrors(Display& display) : display_(display) {}

    /// @param host outlives the last report, or is replaced by null
    void setHost(ErrorHandling* host) { host_ = host; }
    void report(const std::exception& error) override;

private:
    Display& display_;
    ErrorHandling* host_ = nullptr;
};

} // namespace tellurix::ui
