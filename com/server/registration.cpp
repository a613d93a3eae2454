#include "com/server/registration.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "com/automation/wide.h"
#include "com/server/ServedClass.h"
#include "com/server/own_module.h"

#include <shlwapi.h>

#include <array>
#include <filesystem>

// Windows has them, the headers of the compiler do not.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID language,
                                                   SYSKIND system);

namespace tellurix::windows {

namespace {

constexpr auto classesKey = L"Software\\Classes\\";
/// The registry has one half for 64-bit programs and one for 32-bit ones; this is not ours.
constexpr REGSAM otherHalf = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

HKEY rootOf(RegistrationScope scope) {
    return scope == RegistrationScope::machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring writtenAs(REFGUID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

/// One class with the names under which it is registered.
struct Registered {
    std::wstring id;
    std::wstring progId;
    std::wstring classKey;
    std::wstring progIdKey;
};

/// The library's name, id and version, for the keys of its classes.
struct Library {
    Library() : types(ownTypeLibrary()) {
        check(types->GetLibAttr(&attributes), "Reading the type library");
        Bstr text;
        check(types->GetDocumentation(-1, text.put(), nullptr, nullptr, nullptr), "Reading the type library");
        name = text.get();
    }
    ~Library() { types->ReleaseTLibAttr(attributes); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    Registered registered(const ServedClass& served) const {
        ComPtr<ITypeInfo> type;
        check(types->GetTypeInfoOfGuid(served.id, type.put()), "Reading the type library");
        Bstr className;
        check(type->GetDocumentation(MEMBERID_NIL, className.put(), nullptr, nullptr, nullptr),
              "Reading the type library");
        const std::wstring id = writtenAs(served.id);
        const std::wstring progId = name + L"." + className.get();
        return {id, progId, std::wstring(classesKey) + L"CLSID\\" + id, classesKey + progId};
    }
    std::wstring version() const {
        return std::to_wstring(attributes->wMajorVerNum) + L"." + std::to_wstring(attributes->wMinorVerNum);
    }

    /// Where the path of the registered type library stands, for programs of this kind.
    std::wstring typesKey() const {
        return std::wstring(classesKey) + L"TypeLib\\" + writtenAs(attributes->guid) + L"\\" + version() +
               L"\\0\\" + (sizeof(void*) == 8 ? L"win64" : L"win32");
    }

    ComPtr<ITypeLib> types;
    TLIBATTR* attributes = nullptr;
    std::wstring name;
};

void checkRegistry(LSTATUS status, const std::wstring& key) {
    check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)), "Registry key " + narrow(key));
}

void writeKey(HKEY root, const std::wstring& key, const wchar_t* value, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    checkRegistry(RegSetKeyValueW(root, key.c_str(), value, REG_SZ, text.c_str(), bytes), key);
}

void removeKey(HKEY root, const std::wstring& key) {
    LSTATUS status = RegDeleteTreeW(root, key.c_str());
    if (status == ERROR_SUCCESS) status = RegDeleteKeyW(root, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND) checkRegistry(status, key);
}

bool keyExists(HKEY root, const std::wstring& key, REGSAM half) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ | half, &opened) != ERROR_SUCCESS) return false;
    RegCloseKey(opened);
    return true;
}

void registerClass(HKEY root, const Library& library, const Registered& served) {
    writeKey(root, served.classKey, nullptr, served.progId);
    writeKey(root, served.classKey + L"\\InprocServer32", nullptr, ownPath());
    writeKey(root, served.classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    writeKey(root, served.classKey + L"\\ProgID", nullptr, served.progId);
    writeKey(root, served.classKey + L"\\TypeLib", nullptr, writtenAs(library.attributes->guid));
    writeKey(root, served.classKey + L"\\Version", nullptr, library.version());
    writeKey(root, served.progIdKey, nullptr, served.progId);
    writeKey(root, served.progIdKey + L"\\CLSID", nullptr, served.id);
}

std::wstring readKey(HKEY root, const std::wstring& key) {
    std::array<wchar_t, 2 * MAX_PATH> text{};
    auto bytes = static_cast<DWORD>(sizeof text);
    const LSTATUS status =
        RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
    return status == ERROR_SUCCESS ? text.data() : std::wstring();
}

/// Whether somebody else's library is registered by that path. One that is there no more was ours once.
bool isElsewhere(const std::wstring& path) {
    std::error_code failed;
    return !path.empty() && std::filesystem::exists(path, failed) &&
           !std::filesystem::equivalent(path, ownPath(), failed);
}

void unregisterClass(HKEY root, const Registered& served) {
    if (isElsewhere(readKey(root, served.classKey + L"\\InprocServer32"))) return;
    removeKey(root, served.classKey);
    // A user whose first class of his own this was had no such key before.
    if (root == HKEY_CURRENT_USER) SHDeleteEmptyKeyW(root, L"Software\\Classes\\CLSID");
    // Both halves of the registry share the ProgID: the DLL of the other kind may still need it.
    // A class of another library may have the name now.
    const std::wstring named = readKey(root, served.progIdKey + L"\\CLSID");
    const bool isOurs = named.empty() || _wcsicmp(named.c_str(), served.id.c_str()) == 0;
    if (isOurs && !keyExists(root, served.classKey, otherHalf)) removeKey(root, served.progIdKey);
}

} // namespace

void registerServer(RegistrationScope scope) {
    try {
        const Library library;
        for (const ServedClass& served : servedClasses())
            registerClass(rootOf(scope), library, library.registered(served));
        std::wstring path = ownPath();
        const auto registerLibrary =
            scope == RegistrationScope::machine ? RegisterTypeLib : RegisterTypeLibForUser;
        check(registerLibrary(library.types.get(), path.data(), nullptr), "Registering the type library");
    } catch (...) {
        try {
            unregisterServer(scope);
        } catch (const AutomationError&) {
            // What stopped the registration is what the caller has to know.
        }
        throw;
    }
}

void unregisterServer(RegistrationScope scope) {
    const Library library;
    for (const ServedClass& served : servedClasses())
        unregisterClass(rootOf(scope), library.registered(served));
    const auto unregisterLibrary =
        scope == RegistrationScope::machine ? UnRegisterTypeLib : UnRegisterTypeLibForUser;
    const TLIBATTR& id = *library.attributes;
    if (isElsewhere(readKey(rootOf(scope), library.typesKey()))) return;
    const HRESULT result = unregisterLibrary(id.guid, id.wMajorVerNum, id.wMinorVerNum, id.lcid, id.syskind);
    // So it is answered when there was nothing to take away. A registry that cannot be written has
    // been told about by the classes' keys.
    const bool notThere = result == TYPE_E_REGISTRYACCESS || result == E_INVALIDARG;
    if (!notThere) check(result, "Unregistering the type library");
}

} // namespace tellurix::windows
