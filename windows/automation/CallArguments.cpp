#include "automation/CallArguments.h"

#include "automation/AutomationError.h"

#include <utility>

namespace tellurix::windows {

CallArguments::CallArguments(const DISPPARAMS& parameters) : parameters_(parameters) {
    const bool assigned = parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (parameters.cNamedArgs != 0 && !assigned)
        throw AutomationError(DISP_E_NONAMEDARGS, "Arguments cannot be given by name");
}

bool CallArguments::has(std::size_t index) const {
    if (index >= count()) return false;
    const VARIANT& argument = raw(index);
    return argument.vt != VT_ERROR || argument.scode != DISP_E_PARAMNOTFOUND;
}

VARIANT& CallArguments::raw(std::size_t index) const {
    if (index >= count())
        throw AutomationError(DISP_E_BADPARAMCOUNT, "Too few arguments: " + std::to_string(count()));
    return parameters_.rgvarg[count() - 1 - index];
}

void CallArguments::write(std::size_t index, const Variant& value) const {
    const VARIANT& argument = raw(index);
    if ((argument.vt & VT_BYREF) == 0) return;
    if (argument.vt == (VT_BYREF | VT_VARIANT)) {
        VARIANT& target = *argument.pvarVal;
        // A script's variable may hold a reference itself.
        if ((target.vt & VT_BYREF) == 0) {
            Variant copy = value;
            std::swap(static_cast<VARIANT&>(copy), target);
            return;
        }
    }
    const VARIANT& target = argument.vt == (VT_BYREF | VT_VARIANT) ? *argument.pvarVal : argument;
    const auto type = static_cast<VARTYPE>(target.vt & ~VT_BYREF);
    Variant converted = value.as(type);
    switch (type) {
    case VT_BSTR:
        std::swap(*target.pbstrVal, converted.bstrVal);
        break;
    case VT_BOOL:
        *target.pboolVal = converted.boolVal;
        break;
    case VT_I2:
        *target.piVal = converted.iVal;
        break;
    case VT_I4:
        *target.plVal = converted.lVal;
        break;
    case VT_R8:
    case VT_DATE:
        *target.pdblVal = converted.dblVal;
        break;
    case VT_DISPATCH:
        std::swap(*target.ppdispVal, converted.pdispVal);
        break;
    default:
        throw AutomationError(DISP_E_TYPEMISMATCH,
                              "Argument " + std::to_string(index + 1) + " cannot be written to");
    }
}

} // namespace tellurix::windows
