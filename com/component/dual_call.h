#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/CallArguments.h"

namespace tellurix::windows {

/// The number of an interface's first operation in the type library; the others follow.
constexpr DISPID firstOperation = 0x60030000;

[[noreturn]] inline void throwNoSuchOperation() {
    throw AutomationError(DISP_E_MEMBERNOTFOUND, "There is no such operation");
}

/// @throws AutomationError when there are more or fewer arguments
inline void expectCount(const CallArguments& arguments, std::size_t count) {
    if (arguments.count() != count)
        throw AutomationError(DISP_E_BADPARAMCOUNT, std::to_string(count) + " arguments are expected");
}

} // namespace tellurix::windows
