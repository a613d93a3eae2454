#include "com/component/VersionObject.h"

#include "com/automation/Bstr.h"
#include "com/component/dual_call.h"
#include "module/entry/C_Version.h"

namespace tellurix::windows {

HRESULT VersionObject::DLL_Version(BSTR* result) {
    if (result == nullptr) return E_POINTER;
    return guarded(source(), [&] { *result = Bstr(host::C_Version().DLL_Version()).detach(); });
}

Variant VersionObject::invoke(DISPID number, const CallArguments& arguments) {
    if (number != firstOperation) throwNoSuchOperation();
    expectCount(arguments, 0);
    return host::C_Version().DLL_Version();
}

} // namespace tellurix::windows
