#include "com/automation/AutomationError.h"
#include "com/server/ClassFactory.h"
#include "com/server/registration.h"

#include <cwchar>

namespace __gnu_cxx {
/// Frees what the compiler's runtime has put by for exceptions that are thrown without memory.
void __freeres() noexcept;
} // namespace __gnu_cxx

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

/// The runtime is part of the DLL and gives that memory, some 70 kB, back at no time: a host that loads
/// and unloads the DLL again and again would lose it each time.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) __gnu_cxx::__freeres();
    return TRUE;
}
