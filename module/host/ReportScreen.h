#pragma once

#include "module/host/TlxVar.h"
#include "module/host/module_state.h"
#include "module/host/services.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>

namespace tellurix::host {

/// A screen that the host opens directly: the weekly provision reports, the quantity reports.
class ReportScreen : public Screen {
public:
    /// Shows the screen and returns when it is closed.
    /// @param modul the contract kind that the host works on
    virtual void Run(const TlxVar& session, std::int16_t modul) = 0;
};

/// Makes a report screen.
using ReportScreenFactory = std::function<std::unique_ptr<ReportScreen>(HostServices&)>;

/// Thrown by an operation that this build of the module does not have.
class NotAvailable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tellurix::host
