#include "com/automation/Dispatch.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "com/automation/wide.h"

#include <algorithm>
#include <vector>

namespace tellurix::windows {

namespace {

/// What a failed call left behind; its texts are ours to free.
class CallError {
public:
    CallError() = default;
    CallError(const CallError&) = delete;
    CallError& operator=(const CallError&) = delete;
    ~CallError() {
        SysFreeString(information_.bstrSource);
        SysFreeString(information_.bstrDescription);
        SysFreeString(information_.bstrHelpFile);
    }

    EXCEPINFO* put() { return &information_; }

    [[noreturn]] void raise(HRESULT result, const std::string& member) {
        if (result == DISP_E_EXCEPTION) {
            if (information_.pfnDeferredFillIn != nullptr) information_.pfnDeferredFillIn(&information_);
            // Old objects give a small number of their own, in its place or in that of a code.
            const int number =
                information_.wCode != 0 ? information_.wCode : HRESULT_CODE(information_.scode);
            const HRESULT code = FAILED(information_.scode)
                                     ? information_.scode
                                     : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
            const std::string words = textOf(information_.bstrDescription);
            throw AutomationError(code, words.empty() ? member + ": " + describeCode(code) : words,
                                  textOf(information_.bstrSource));
        }
        check(result, member);
        throw AutomationError(E_UNEXPECTED, member + ": " + describeCode(result));
    }

private:
    EXCEPINFO information_{};
};

} // namespace

Dispatch::Dispatch(const Variant& value) : object_(value.object()) {
    if (!object_) throw AutomationError(E_POINTER, "The object is Nothing");
}

Dispatch Dispatch::create(const std::string& progId) {
    const std::string action = "Creating " + progId;
    CLSID id{};
    check(CLSIDFromProgID(widen(progId).c_str(), &id), action);
    ComPtr<IDispatch> object;
    check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                           object.putVoid()),
          action);
    return Dispatch(std::move(object));
}

void Dispatch::put(const wchar_t* name, const Variant& value) {
    invoke(name, DISPATCH_PROPERTYPUT, {value});
}

void Dispatch::putReference(const wchar_t* name, const Dispatch& value) {
    invoke(name, DISPATCH_PROPERTYPUTREF, {Variant(value.object())});
}

Variant Dispatch::invoke(const wchar_t* name, WORD kind, Arguments arguments) {
    const DISPID number = numberOf(name);
    // Automation takes the last argument first; they are lent, so no reference changes hands.
    std::vector<VARIANT> reversed(arguments.begin(), arguments.end());
    std::ranges::reverse(reversed);
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    const bool assigns = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (assigns) {
        parameters.rgdispidNamedArgs = &assigned;
        parameters.cNamedArgs = 1;
    }
    Variant answer;
    CallError error;
    const HRESULT result = object_->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                           assigns ? nullptr : answer.put(), error.put(), nullptr);
    if (FAILED(result)) error.raise(result, narrow(name));
    return answer;
}

bool Dispatch::has(const wchar_t* name) {
    DISPID number = DISPID_UNKNOWN;
    return SUCCEEDED(ask(name, number));
}

DISPID Dispatch::numberOf(const wchar_t* name) {
    DISPID number = DISPID_UNKNOWN;
    check(ask(name, number), narrow(name));
    return number;
}

HRESULT Dispatch::ask(const wchar_t* name, DISPID& number) {
    if (!object_) return E_POINTER;
    const auto known = numbers_.find(std::wstring_view(name));
    if (known != numbers_.end()) {
        number = known->second;
        return S_OK;
    }
    std::wstring asked = name;
    LPOLESTR names = asked.data();
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &number);
    if (SUCCEEDED(result)) numbers_.emplace(std::move(asked), number);
    return result;
}

} // namespace tellurix::windows
