#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/com.h"

#include <span>

namespace tellurix::windows {

/// A class that clients of this DLL can create. Its name and description stand in the DLL's type
/// library, under the same id.
struct ServedClass {
    CLSID id;
    ComPtr<IUnknown> (*create)();
};

/// All classes of this DLL; each DLL defines it.
std::span<const ServedClass> servedClasses();

} // namespace tellurix::windows
