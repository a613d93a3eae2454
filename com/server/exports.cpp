#include "com/automation/AutomationError.h"
#include "com/server/ClassFactory.h"
#include "com/server/registration.h"

#include <cwchar>

// The functions by which COM, regsvr32 and installers use a DLL.

using namespace tellurix::windows;

namespace {

constexpr auto sourceName = "Tellurix registration";

HRESULT install(bool registering, RegistrationScope scope) noexcept {
    return guarded(sourceName, [&] { registering ? registerServer(scope) : unregisterServer(scope); });
}

} // namespace

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** answer) {
    if (answer == nullptr) return E_POINTER;
    *answer = nullptr;
    HRESULT result = CLASS_E_CLASSNOTAVAILABLE;
    const HRESULT found = guarded(sourceName, [&] {
        for (const ServedClass& served : servedClasses())
            if (served.id == classId)
                result = ComPtr<IClassFactory>::adopt(new ClassFactory(served))->QueryInterface(id, answer);
    });
    return FAILED(found) ? found : result;
}

STDAPI DllCanUnloadNow() {
    return serverInUse() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
    return install(true, RegistrationScope::machine);
}

STDAPI DllUnregisterServer() {
    return install(false, RegistrationScope::machine);
}

/// @param arguments what stands behind /i: in the call of regsvr32: "user" for the signed-on user
STDAPI DllInstall(BOOL registering, PCWSTR arguments) {
    const bool user = arguments != nullptr && _wcsicmp(arguments, L"user") == 0;
    if (!user && arguments != nullptr && *arguments != L'\0') return E_INVALIDARG;
    return install(registering != FALSE, user ? RegistrationScope::user : RegistrationScope::machine);
}
