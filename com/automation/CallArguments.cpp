#include "com/automation/CallArguments.h"

#include "com/automation/variables.h"

namespace tellurix::windows {

ArgumentError::ArgumentError(HRESULT code, std::size_t index, const std::string& description)
    : AutomationError(code, "Argument " + std::to_string(index + 1) + ": " + description), index_(index) {}

void Argument::requireGiven() const {
    if (vt == VT_ERROR && scode == DISP_E_PARAMNOTFOUND)
        throw ArgumentError(DISP_E_PARAMNOTOPTIONAL, index_, "It has to be given");
}

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

Argument CallArguments::operator[](std::size_t index) const {
    return {Variant::copyOf(raw(index)), index};
}

void CallArguments::expectWritable(std::size_t index) const {
    if (!isAssignable(raw(index)))
        throw ArgumentError(DISP_E_TYPEMISMATCH, index, "Its variable cannot be written to");
}

void CallArguments::write(std::size_t index, const Variant& value) const {
    VARIANT& argument = raw(index);
    if ((argument.vt & VT_BYREF) != 0) assign(argument, value);
}

} // namespace tellurix::windows
