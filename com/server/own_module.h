#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/com.h"

#include <string>

namespace tellurix::windows {

/// What the DLL that this code stands in knows of itself.

/// Its file with the full path.
std::wstring ownPath();

/// The type library built into it.
ComPtr<ITypeLib> ownTypeLibrary();

/// The description of one of its interfaces or classes.
ComPtr<ITypeInfo> ownTypeInfo(REFGUID id);

} // namespace tellurix::windows
