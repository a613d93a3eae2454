#include "com/automation/com.h"
#include "com/automation/wide.h"
#include "standin/windows_host/libraries.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

namespace tellurix::tests {
namespace {

using windows::narrow;

/// Everything below a key: values by their full names, and each key by itself.
using Registry = std::map<std::wstring, std::wstring>;

void collect(HKEY root, const std::wstring& path, Registry& registry) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
    registry[path];
    std::array<wchar_t, 300> name{};
    for (DWORD i = 0, size = name.size();
         RegEnumKeyExW(key, i, name.data(), &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, size = name.size())
        collect(root, path + L"\\" + name.data(), registry);
    std::array<wchar_t, 2000> value{};
    for (DWORD i = 0, size = name.size(), bytes = sizeof value, type = 0;
         RegEnumValueW(key, i, name.data(), &size, nullptr, &type, reinterpret_cast<BYTE*>(value.data()),
                       &bytes) == ERROR_SUCCESS;
         ++i, size = name.size(), bytes = sizeof value)
        registry[path + L"@" + name.data()] = std::wstring(value.data(), bytes / sizeof(wchar_t));
    RegCloseKey(key);
}

/// Both places where classes are registered.
std::array<Registry, 2> classes() {
    std::array<Registry, 2> found;
    collect(HKEY_LOCAL_MACHINE, L"Software\\Classes", found[0]);
    collect(HKEY_CURRENT_USER, L"Software\\Classes", found[1]);
    return found;
}

std::string firstDifference(const Registry& before, const Registry& after) {
    for (const auto& [name, value] : after)
        if (const auto found = before.find(name); found == before.end() || found->second != value)
            return "new: " + narrow(name);
    for (const auto& [name, value] : before)
        if (!after.contains(name)) return "gone: " + narrow(name);
    return {};
}

std::size_t additions(const Registry& before, const Registry& after, const std::wstring& word) {
    std::size_t count = 0;
    for (const auto& [name, value] : after)
        if (!before.contains(name) && name.find(word) != std::wstring::npos) ++count;
    return count;
}

void install(BOOL registering, PCWSTR scope) {
    for (const wchar_t* library : {L"Tellurix_Loc.dll", L"Tellurix_Vertrag.dll"}) {
        const HMODULE loaded = LoadLibraryW(library);
        const auto function = reinterpret_cast<HRESULT(STDAPICALLTYPE*)(BOOL, PCWSTR)>(
            reinterpret_cast<void*>(GetProcAddress(loaded, "DllInstall")));
        EXPECT_EQ(function(registering, scope), S_OK) << narrow(library);
        EXPECT_EQ(function(registering, scope), S_OK) << "once more changes nothing";
        EXPECT_EQ(function(registering, L"everybody"), E_INVALIDARG);
        FreeLibrary(loaded);
    }
}

TEST(Registration, LeavesTheRegistryAsItWasForMachineAndUser) {
    windows::unregisterLibraries();
    // Windows makes it with the user; Wine when it is first written to.
    HKEY usersClasses = nullptr;
    RegCreateKeyW(HKEY_CURRENT_USER, L"Software\\Classes", &usersClasses);
    RegCloseKey(usersClasses);

    const auto before = classes();
    for (const bool forUser : {false, true}) {
        const wchar_t* const scope = forUser ? L"user" : L"";
        SCOPED_TRACE(narrow(scope));
        install(TRUE, scope);
        const auto registered = classes();
        EXPECT_EQ(additions(before[forUser], registered[forUser], L"@ThreadingModel"), 19U);
        EXPECT_GT(additions(before[forUser], registered[forUser], L"\\Tellurix_Vertrag.clsVertrag\\CLSID"),
                  0U);
        EXPECT_EQ(additions(before[!forUser], registered[!forUser], L"@ThreadingModel"), 0U)
            << "nothing for anybody else";
        install(FALSE, scope);
        const auto after = classes();
        EXPECT_EQ(firstDifference(before[0], after[0]), "");
        EXPECT_EQ(firstDifference(before[1], after[1]), "");
    }
    windows::registerLibraries();
}

} // namespace
} // namespace tellurix::tests
