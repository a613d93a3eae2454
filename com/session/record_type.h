#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/com.h"

namespace tellurix::windows {

/// The description of the session record in the type library of the host's library.
/// @throws AutomationError when that is not registered
ComPtr<IRecordInfo> sessionRecordType();

/// Whether a record is one, by its description.
bool isSessionRecord(IRecordInfo& type);

} // namespace tellurix::windows
