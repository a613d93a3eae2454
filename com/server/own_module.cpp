#include "com/server/own_module.h"

#include "com/automation/AutomationError.h"

namespace tellurix::windows {

namespace {

/// Any address within this DLL.
const char addressInside = 0;

} // namespace

std::wstring ownPath() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&addressInside), &module);
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (size < path.size()) {
            path.resize(size);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

ComPtr<ITypeLib> ownTypeLibrary() {
    ComPtr<ITypeLib> library;
    check(LoadTypeLibEx(ownPath().c_str(), REGKIND_NONE, library.put()), "Loading the type library");
    return library;
}

ComPtr<ITypeInfo> ownTypeInfo(REFGUID id) {
    ComPtr<ITypeInfo> type;
    check(ownTypeLibrary()->GetTypeInfoOfGuid(id, type.put()), "Looking into the type library");
    return type;
}

} // namespace tellurix::windows
