#include "host/libraries.h"

#include "automation/AutomationError.h"
#include "automation/com.h"
#include "automation/wide.h"

#include <array>
#include <filesystem>
#include <string>

namespace tellurix::windows {

namespace {

constexpr std::array libraries{L"Tellurix_Loc.dll", L"Tellurix_Vertrag.dll"};

/// A library beside this program, as long as it is in memory.
class Library {
public:
    explicit Library(const wchar_t* name) : name_(name) {
        std::wstring program(MAX_PATH, L'\0');
        program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
        const auto file = std::filesystem::path{program}.parent_path() / name;
        handle_ = LoadLibraryW(file.c_str());
        if (handle_ == nullptr)
            check(HRESULT_FROM_WIN32(GetLastError()), "Laden von " + narrow(file.wstring()));
    }
    ~Library() { FreeLibrary(handle_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    /// Calls one of the functions for registering.
    template <typename... Arguments>
    void call(const char* function, Arguments... arguments) const {
        using Function = HRESULT(STDAPICALLTYPE*)(Arguments...);
        const FARPROC address = GetProcAddress(handle_, function);
        if (address == nullptr) throw std::runtime_error{narrow(name_) + " hat kein " + function};
        check(reinterpret_cast<Function>(reinterpret_cast<void*>(address))(arguments...),
              narrow(name_) + " " + function);
    }

private:
    const wchar_t* name_;
    HMODULE handle_ = nullptr;
};

bool areFound() {
    CLSID id{};
    return SUCCEEDED(CLSIDFromProgID(L"Tellurix_Vertrag.clsVertrag", &id)) &&
           SUCCEEDED(CLSIDFromProgID(L"Tellurix_Loc.HostModuleService", &id));
}

} // namespace

void registerLibraries() {
    for (const wchar_t* name : libraries)
        Library{name}.call("DllInstall", BOOL{TRUE}, PCWSTR{L"user"});
    if (areFound()) return;
    for (const wchar_t* name : libraries)
        Library{name}.call("DllRegisterServer");
}

void unregisterLibraries() {
    for (const wchar_t* name : libraries)
        Library{name}.call("DllInstall", BOOL{FALSE}, PCWSTR{L"user"});
    if (!areFound()) return;
    for (const wchar_t* name : libraries)
        Library{name}.call("DllUnregisterServer");
}

} // namespace tellurix::windows
