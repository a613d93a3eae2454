#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "standin/windows_host/HostSession.h"
#include "standin/windows_host/libraries.h"

#include <shellapi.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tellurix::windows {
namespace {

std::vector<std::string> commandLine() {
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words{CommandLineToArgvW(GetCommandLineW(), &count),
                                                              LocalFree};
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(narrow(words.get()[i]));
    return arguments;
}

std::string signedOnUser() {
    std::wstring name(256, L'\0');
    DWORD size = 256;
    if (GetUserNameW(name.data(), &size) == 0) return {};
    name.resize(size - 1);
    return narrow(name);
}

/// The main thread is the host's one apartment.
class Apartment {
public:
    Apartment() { check(OleInitialize(nullptr), "OleInitialize"); }
    ~Apartment() { OleUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

void perform(HostOptions options) {
    const Apartment apartment;
    switch (options.task) {
    case HostOptions::Task::registerLibraries:
        return registerLibraries();
    case HostOptions::Task::unregisterLibraries:
        return unregisterLibraries();
    case HostOptions::Task::work:
        if (!librariesAreRegistered()) {
            throw std::runtime_error{
                "Die Bibliotheken sind nicht angemeldet. Anmelden mit: tellurix-host --register"};
        }
        if (options.user.empty()) options.user = signedOnUser();
        HostSession{options}.run();
    }
}

} // namespace
} // namespace tellurix::windows

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int) {
    using namespace tellurix::windows;
    try {
        perform(HostOptions::parse(commandLine()));
        return 0;
    } catch (const std::exception& error) {
        MessageBoxW(nullptr, widen(error.what()).c_str(), L"Tellurix", MB_ICONERROR);
        return 1;
    }
}
