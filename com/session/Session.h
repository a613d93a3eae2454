#pragma once

#include "com/session/HostsRecord.h"
#include "database/ado/AdoConnection.h"
#include "module/host/TlxVar.h"

#include <memory>

namespace tellurix::windows {

/// A session record that came from the host, as our code uses it. It keeps the connection.
class Session {
public:
    /// @throws AutomationError when the record has no connection
    explicit Session(std::unique_ptr<HostsRecord> record);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    host::TlxVar& values() { return values_; }
    const host::TlxVar& values() const { return values_; }

private:
    ado::AdoConnection connection_;
    host::TlxVar values_;
};

/// The record among the arguments of a late-bound call, where the caller has it.
/// @param name the parameter's, for the error text
/// @throws AutomationError when the argument is none
std::unique_ptr<HostsRecord> recordIn(VARIANT& argument, const char* name);

} // namespace tellurix::windows
