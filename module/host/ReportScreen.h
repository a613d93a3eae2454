#pragma once

#include "module/host/TlxVar.h"
#include "module/host/module_state.h"

#include <cstdint>

namespace tellurix::host {

/// A screen that the host opens directly: the weekly provision reports, the quantity reports.
class ReportScreen : public Screen {
public:
    /// Shows the screen and returns when it is closed.
    /// @param modul the contract kind that the host works on
    virtual void Run(const TlxVar& session, std::int16_t modul) = 0;
};

} // namespace tellurix::host
