#include "standin/windows_host/libraries.h"

#include "com/automation/AutomationError.h"
#include "com/automation/com.h"
#include "com/automation/wide.h"

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
    HRESULT call(const char* function, Arguments... arguments) const {
        using Function = HRESULT(STDAPICALLTYPE*)(Arguments...);
        const FARPROC address = GetProcAddress(handle_, function);
        if (address == nullptr) throw std::runtime_error{narrow(name_) + " hat kein " + function};
        return reinterpret_cast<Function>(reinterpret_cast<void*>(address))(arguments...);
    }

private:
    const wchar_t* name_;
    HMODULE handle_ = nullptr;
};

/// Registers for the machine or takes that back. @return false when the user may not
bool forMachine(const char* function) {
    for (const wchar_t* name : libraries) {
        const HRESULT result = Library{name}.call(function);
        if (result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS) return false;
        check(result, narrow(name) + " " + function);
    }
    return true;
}

void forUser(bool install) {
    for (const wchar_t* name : libraries)
        check(Library{name}.call("DllInstall", BOOL{install}, PCWSTR{L"user"}), narrow(name) + " DllInstall");
}

} // namespace

bool librariesAreRegistered() {
    CLSID id{};
    return SUCCEEDED(CLSIDFromProgID(L"Tellurix_Loc.EmbeddedConnection", &id)) &&
           SUCCEEDED(CLSIDFromProgID(L"Tellurix_Vertrag.clsVertrag", &id));
}

void registerLibraries() {
    if (!forMachine("DllRegisterServer")) forUser(true);
}

void unregisterLibraries() {
    forUser(false);
    forMachine("DllUnregisterServer");
}

} // namespace tellurix::windows
