#include "automation/invoke_failure.h"

#include "automation/AutomationError.h"
#include "automation/Bstr.h"

#include <new>

namespace tellurix::windows {

HRESULT tellInvoker(EXCEPINFO* error, const char* source) noexcept {
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
