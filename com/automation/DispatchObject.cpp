#include "com/automation/DispatchObject.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Dispatch.h"
#include "com/automation/invoke_failure.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace tellurix::windows {

namespace {

/// The items of a collection, one after the other.
class ItemsInTurn final : public ComObject<IEnumVARIANT> {
public:
    ItemsInTurn(ComPtr<IDispatch> collection, std::int32_t next)
        : collection_(std::move(collection)), next_(next) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* got) override {
        if (items == nullptr || (got == nullptr && wanted != 1)) return E_POINTER;
        ULONG count = 0;
        const HRESULT result = guarded("Items", [&] {
            for (; count < wanted && next_ < size(); ++count, ++next_)
                collection_.get(L"Item", {next_}).detachTo(items[count]);
        });
        if (got != nullptr) *got = count;
        return FAILED(result) ? result : (count == wanted ? S_OK : S_FALSE);
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        return guarded("Items", [&] { next_ = std::min(size(), next_ + static_cast<std::int32_t>(count)); });
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
        if (copy == nullptr) return E_POINTER;
        return guarded("Items", [&] { *copy = new ItemsInTurn(collection_.object(), next_); });
    }

private:
    std::int32_t size() { return collection_.get(L"Count").integer(); }

    Dispatch collection_;
    std::int32_t next_;
};

} // namespace

DispatchTable& DispatchTable::defaultMember(const wchar_t* name) {
    default_ = numberOf(name);
    return *this;
}

DispatchTable& DispatchTable::enumerable() {
    enumerable_ = true;
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

Variant DispatchObject::invoke(DISPID number, WORD kind, const CallArguments& arguments) {
    const bool assigns = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (number == DISPID_NEWENUM && table().isEnumerable() && !assigns) {
        Variant items;
        items.punkVal = ComPtr<IUnknown>::adopt(new ItemsInTurn(ComPtr<IDispatch>(this), 0)).detach();
        items.vt = VT_UNKNOWN;
        return items;
    }
    const DispatchTable::Member* const member = table().member(number);
    const DispatchTable::Operation* const operation =
        member == nullptr ? nullptr : (assigns ? &member->put : &member->get);
    if (operation == nullptr || !*operation)
        throw AutomationError(DISP_E_MEMBERNOTFOUND, "There is no such member");
    return (*operation)(*this, arguments);
}

HRESULT DispatchObject::Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                               VARIANT* answer, EXCEPINFO* error, UINT* wrongArgument) {
    if (parameters == nullptr) return E_POINTER;
    // The caller may drop its last reference while the member is still running.
    const ComPtr<IDispatch> alive(this);
    try {
        Variant result = invoke(number, kind, CallArguments(*parameters));
        if (answer != nullptr) result.detachTo(*answer);
        return S_OK;
    } catch (...) {
        return tellInvoker(error, source(), *parameters, wrongArgument);
    }
}

} // namespace tellurix::windows
