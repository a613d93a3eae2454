#pragma once

#include "module/host/TlxVar.h"
#include "module/host/services.h"

#include <cstdint>
#include <string>

namespace tellurix::parts {

/// The contract that a screen is open on, and what is needed to work on it. A part of a screen is handed
/// it by value each time a contract is opened: it need not watch the members of the screen change.
struct OpenContract {
    host::HostServices* services = nullptr; ///< null until a contract is open
    host::TlxVar session = {};
    std::int32_t id = 0;   ///< `ID_VERTRAG`
    std::string name = {}; ///< `VERTRAG_NAME`, which is also the accounting name

    base::Connection& connection() const { return *session.connection; }
    /// @throws base::Refused when a colleague has deleted it
    void requirePresent() const;
};

} // namespace tellurix::parts
