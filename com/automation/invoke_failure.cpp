#include "com/automation/invoke_failure.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "com/automation/CallArguments.h"

#include <new>

namespace tellurix::windows {

namespace {

/// Where an argument came: those by name first, each with the number of its parameter, then the others,
/// backwards.
UINT placeOf(std::size_t argument, const DISPPARAMS& given) {
    for (UINT i = 0; i < given.cNamedArgs; ++i)
        if (given.rgdispidNamedArgs[i] == static_cast<DISPID>(argument)) return i;
    return given.cArgs - 1 - static_cast<UINT>(argument);
}

} // namespace

HRESULT tellInvoker(EXCEPINFO* error, const char* source, const DISPPARAMS& given,
                    UINT* wrongArgument) noexcept {
    try {
        throw;
    } catch (const ArgumentError& wrong) {
        if (wrongArgument != nullptr && wrong.code() != DISP_E_PARAMNOTOPTIONAL)
            *wrongArgument = placeOf(wrong.index(), given);
        return wrong.code();
    } catch (...) {
        // All others are told below.
    }
    const Failure failure = currentFailure(source);
    switch (failure.code) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_BADPARAMCOUNT:
    case DISP_E_PARAMNOTFOUND:
    case DISP_E_NONAMEDARGS:
        return failure.code; // mistakes of the call itself have no further description
    default:
        break;
    }
    if (error == nullptr) return report(failure);
    *error = {};
    error->scode = failure.code;
    try {
        error->bstrSource = Bstr(failure.source).detach();
        error->bstrDescription = Bstr(failure.description).detach();
    } catch (const std::bad_alloc&) {
        // The code alone has to do.
    }
    return DISP_E_EXCEPTION;
}

} // namespace tellurix::windows
