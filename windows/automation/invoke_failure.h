#pragma once

#include "automation/com.h"

namespace tellurix::windows {

/// To be called in a handler, `catch (...)`, of IDispatch::Invoke: tells the caller about the
/// exception that is being handled.
/// @param error what the caller gave for it, or null
/// @param source our own name, used when the error does not say whose it is
/// @return what Invoke answers
HRESULT tellInvoker(EXCEPINFO* error, const char* source) noexcept;

} // namespace tellurix::windows
