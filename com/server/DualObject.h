#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/CallArguments.h"
#include "com/automation/ComObject.h"
#include "com/automation/invoke_failure.h"
#include "com/server/PlacedArguments.h"
#include "com/server/own_module.h"

namespace tellurix::windows {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Says that an object leaves error information with the thread, as a second interface of that object.
class ErrorInfoSupport final : public ISupportErrorInfo {
public:
    explicit ErrorInfoSupport(IUnknown& object) : object_(object) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** answer) override {
        return object_.QueryInterface(id, answer);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return object_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return object_.Release(); }
    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID) override { return S_OK; }

private:
    IUnknown& object_;
};

#pragma GCC diagnostic pop

/// An object with a dual interface of the DLL's type library: clients call its operations directly,
/// or by name as scripts do. Names and numbers come from the type library. The call itself is done
/// by `invoke` and not by the library, which not everywhere can pass a record on.
template <typename Interface>
class DualObject : public ComObject<Interface, IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** answer) final {
        if (answer == nullptr || id != __uuidof(ISupportErrorInfo))
            return ComObject<Interface, IDispatch>::QueryInterface(id, answer);
        *answer = &errors_;
        this->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) final {
        if (count == nullptr) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** answer) final {
        if (answer == nullptr) return E_POINTER;
        *answer = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return guarded(source(), [&] { *answer = ComPtr<ITypeInfo>(type()).detach(); });
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* numbers) final {
        HRESULT result = S_OK;
        const HRESULT asked =
            guarded(source(), [&] { result = type()->GetIDsOfNames(names, count, numbers); });
        return FAILED(asked) ? asked : result;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                     VARIANT* answer, EXCEPINFO* error, UINT* wrongArgument) final {
        if (parameters == nullptr) return E_POINTER;
        // There are operations alone, and nothing that could be assigned to.
        if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) return DISP_E_MEMBERNOTFOUND;
        const ComPtr<IDispatch> alive(this);
        try {
            const PlacedArguments placed(*parameters);
            Variant result = invoke(number, CallArguments(placed.parameters()));
            if (answer != nullptr) result.detachTo(*answer);
            return S_OK;
        } catch (...) {
            return tellInvoker(error, source(), *parameters, wrongArgument);
        }
    }

protected:
    /// Does the operation with that number of the type library.
    /// @throws AutomationError (DISP_E_MEMBERNOTFOUND) when there is none
    virtual Variant invoke(DISPID number, const CallArguments& arguments) = 0;
    /// Who it is that reports an error, such as "Tellurix_Vertrag.clsVertrag".
    virtual const char* source() const = 0;

private:
    const ComPtr<ITypeInfo>& type() {
        if (!type_) type_ = ownTypeInfo(__uuidof(Interface));
        return type_;
    }

    ErrorInfoSupport errors_{*this};
    ComPtr<ITypeInfo> type_;
};

} // namespace tellurix::windows
