#pragma once

#include "com/automation/com.h"

namespace tellurix::windows {

/// To be called in a handler, `catch (...)`, of IDispatch::Invoke: tells the caller about the
/// exception that is being handled.
/// @param error what the caller gave for it, or null
/// @param source our own name, used when the error does not say whose it is
/// @param given the arguments as they came
/// @param wrongArgument gets the place in `given` of the argument that is to blame; may be null
/// @return what Invoke answers
HRESULT tellInvoker(EXCEPINFO* error, const char* source, const DISPPARAMS& given,
                    UINT* wrongArgument) noexcept;

} // namespace tellurix::windows
