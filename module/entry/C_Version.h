#pragma once

#include <string>

namespace tellurix::host {

/// The module's version, for the host's information dialog.
class C_Version {
public:
    /// Major version and revision, "2.0".
    std::string DLL_Version() const;
};

} // namespace tellurix::host
