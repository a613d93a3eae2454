#include "com/automation/DispatchObject.h"

#include "com/automation/AutomationError.h"
#include "com/automation/invoke_failure.h"

#include <cwchar>

namespace tellurix::windows {

DispatchTable& DispatchTable::defaultMember(const wchar_t* name) {
    default_ = numberOf(name);
    return *this;
}

DISPID DispatchTable::numberOf(const wchar_t* name) const {
    for (std::size_t index = 0; index < members_.size(); ++index)
        if (_wcsicmp(members_[index].name.c_str(), name) == 0) return static_cast<DISPID>(index + 1);
    return DISPID_UNKNOWN;
}

const DispatchTable::Member* DispatchTable::member(DISPID number) const {
    if (number == DISPID_VALUE) number = default_;
    if (number < 1 || static_cast<std::size_t>(number) > members_.size()) return nullptr;
    return &members_[static_cast<std::size_t>(number) - 1];
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** type) {
    if (type != nullptr) *type = nullptr;
    return E_NOTIMPL;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
    if (names == nullptr || numbers == nullptr) return E_POINTER;
    if (count == 0) return S_OK;
    numbers[0] = table().numberOf(names[0]);
    // Further names are those of arguments, which have none here.
    for (UINT index = 1; index < count; ++index)
        numbers[index] = DISPID_UNKNOWN;
    return count > 1 || numbers[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT DispatchObject::Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                               VARIANT* answer, EXCEPINFO* error, UINT* wrongArgument) {
    if (parameters == nullptr) return E_POINTER;
    // The caller may drop its last reference while the member is still running.
    const ComPtr<IDispatch> alive(this);
    try {
        const DispatchTable::Member* const member = table().member(number);
        const bool assigns = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        const DispatchTable::Operation* const operation =
            member == nullptr ? nullptr : (assigns ? &member->put : &member->get);
        if (operation == nullptr || !*operation)
            throw AutomationError(DISP_E_MEMBERNOTFOUND, "There is no such member");
        Variant result = (*operation)(*this, CallArguments(*parameters));
        if (answer != nullptr) result.detachTo(*answer);
        return S_OK;
    } catch (...) {
        return tellInvoker(error, source(), *parameters, wrongArgument);
    }
}

} // namespace tellurix::windows
