#include "com/automation/variables.h"

#include "com/automation/AutomationError.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tellurix::windows {

namespace {

bool refers(const VARIANT& variable) {
    return (variable.vt & VT_BYREF) != 0;
}

VARTYPE typeOf(const VARIANT& variable) {
    return static_cast<VARTYPE>(variable.vt & ~VT_BYREF);
}

/// How many bytes a variable of that type has; 0 for types that nothing is written to.
std::size_t sizeOf(VARTYPE type) {
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
        return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return sizeof(void*);
    default:
        return 0;
    }
}

} // namespace

const VARIANT& followed(const VARIANT& value) {
    const VARIANT* at = &value;
    while (at->vt == (VT_BYREF | VT_VARIANT) && at->pvarVal != nullptr)
        at = at->pvarVal;
    return *at;
}

VARIANT& followed(VARIANT& value) {
    return const_cast<VARIANT&>(followed(std::as_const(value)));
}

bool isAssignable(const VARIANT& variable) {
    const VARIANT& target = followed(variable);
    return !refers(target) || (target.byref != nullptr && sizeOf(typeOf(target)) != 0);
}

void assign(VARIANT& variable, const Variant& value) {
    VARIANT& target = followed(variable);
    if (!isAssignable(target))
        throw AutomationError(DISP_E_TYPEMISMATCH, "The variable cannot be written to");
    if (!refers(target)) {
        Variant copy = value;
        std::swap(static_cast<VARIANT&>(copy), target);
        return;
    }
    // Exchanged, so that a text or an object that was there before is let go.
    Variant converted = value.as(typeOf(target));
    auto* const own = reinterpret_cast<std::byte*>(&converted.byref);
    std::swap_ranges(own, own + sizeOf(typeOf(target)), static_cast<std::byte*>(target.byref));
}

} // namespace tellurix::windows
