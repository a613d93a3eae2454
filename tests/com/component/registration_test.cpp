#include "com/automation/com.h"
#include "com/automation/wide.h"
#include "standin/windows_host/libraries.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
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
        EXPECT_EQ(additions(before[forUser], registered[forUser], L"@ThreadingModel"), 25U);
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

TEST(Registration, LeavesWhatAHostHasRegisteredItself) {
    windows::registerLibraries();
    const std::wstring names = L"Software\\Classes\\Tellurix_Loc.HostLocalizer";
    const std::wstring classKey =
        L"Software\\Classes\\CLSID\\{592FF1F3-EFF0-466A-879F-0B49B2D1FC2E}"; // Tellurix_Loc.ListPicker
    const auto write = [](const std::wstring& key, const std::wstring& text) {
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, text.c_str(),
                        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    };
    write(names + L"\\CLSID", L"{0f5a7f0e-3a44-4c3f-9a0b-5d2f7e6c9a02}");
    write(classKey + L"\\InprocServer32", L"C:\\windows\\system32\\ole32.dll");
    windows::unregisterLibraries();
    const Registry left = classes()[0];
    EXPECT_TRUE(left.contains(names + L"\\CLSID@")) << "a name that leads to another class";
    EXPECT_TRUE(left.contains(classKey + L"\\InprocServer32@")) << "a class in another library";
    EXPECT_FALSE(left.contains(L"Software\\Classes\\Tellurix_Loc.DateConverter\\CLSID@"));
    windows::registerLibraries();
    EXPECT_TRUE(windows::librariesAreRegistered());
}

TEST(Registration, IsAskedForByKnownWordsAlone) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::temp_directory_path() / "tellurix-register";
    const fs::path package = fs::path("Z:" TELLURIX_TEST_FOLDER) / "../../../com/package";
    fs::create_directory(folder);
    std::ofstream(folder / "each_library.cmd") << "@echo %options%: %*\r\n";
    const auto answer = [&](const std::string& script, const std::string& words) {
        std::ifstream original(package / script);
        std::ofstream copy(folder / script);
        for (std::string line; std::getline(original, line);)
            copy << line << "\r\n";
        copy.close();
        FILE* const console = _popen((folder / script).string().append(" ").append(words).c_str(), "r");
        std::string output;
        for (int c = std::fgetc(console); c != EOF; c = std::fgetc(console))
            if (c != '\r' && c != '\n') output += static_cast<char>(c);
        return output + " " + std::to_string(_pclose(console));
    };
    const struct {
        const char* script;
        const char* words;
        const char* answer;
    } cases[] = {
        {"register.cmd", "", "/s: Tellurix_Vertrag.dll 0"},
        {"register.cmd", "user", "/s /n /i:user: Tellurix_Vertrag.dll 0"},
        {"register.cmd", "standin", "/s: Tellurix_Loc.dll Tellurix_Vertrag.dll 0"},
        {"register.cmd", "User StandIn", "/s /n /i:user: Tellurix_Loc.dll Tellurix_Vertrag.dll 0"},
        {"register.cmd", "usr", "Unbekanntes Wort: usr. Bekannt sind: user, standin. 2"},
        {"register.cmd", "standin all", "Unbekanntes Wort: all. Bekannt sind: user, standin. 2"},
        {"unregister.cmd", "", "/s /u: Tellurix_Vertrag.dll Tellurix_Loc.dll 0"},
        {"unregister.cmd", "user", "/s /u /n /i:user: Tellurix_Vertrag.dll Tellurix_Loc.dll 0"},
        {"unregister.cmd", "all", "Unbekannt: all. Bekannt ist: user. 2"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(answer(c.script, c.words), c.answer) << c.script << " " << c.words;
    fs::remove_all(folder);
}

} // namespace
} // namespace tellurix::tests
