#include "tests/standin/windows_host/HostTest.h"

#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "standin/windows_host/libraries.h"

#include <atomic>
#include <future>

namespace tellurix::tests {

namespace {

struct NoArticles final : host::HostMainWindow {
    bool IsArtikel() override { return false; }
};

std::filesystem::path freshFile() {
    return std::filesystem::temp_directory_path() /
           ("tellurix-test-" + std::to_string(GetCurrentProcessId()) + "-" +
            std::to_string(GetTickCount64()) + ".db");
}

HWND plainWindow() {
    return CreateWindowW(L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr,
                         nullptr, nullptr, nullptr);
}

windows::Dispatch connected(const std::filesystem::path& file) {
    windows::registerLibraries();
    auto connection = windows::Dispatch::create("Tellurix_Loc.EmbeddedConnection");
    connection.call(L"Open", {windows::narrow(file.wstring())});
    return connection;
}

} // namespace

HostTest::Apartment::Apartment() {
    windows::check(::OleInitialize(nullptr), "OleInitialize");
}

HostTest::Apartment::~Apartment() {
    ::OleUninitialize();
}

HostTest::HostTest()
    : file_(freshFile()),
      window_(plainWindow()),
      connection_(connected(file_)),
      opener_(connection_, session_, std::make_shared<NoArticles>()) {}

HostTest::~HostTest() {
    DestroyWindow(window_);
    connection_.call(L"Close");
    for (const wchar_t* suffix : {L"", L"-wal", L"-shm"})
        std::filesystem::remove(file_.wstring() + suffix);
}

void HostTest::open(const standin::ContractToOpen& contract, const Script& script) {
    work(
        "F_Vertrag", [&] { opener_.open(contract); }, script);
}

void HostTest::work(const std::string& form, const std::function<void()>& opening, const Script& script) {
    const DWORD thread = GetCurrentThreadId();
    std::atomic<bool> over = false;
    auto work = std::async(std::launch::async, [&] {
        try {
            WindowsUser user{thread};
            while (WindowsUser::nameOf(user.top()) != form) {
                if (over) return;
                Sleep(1);
            }
            user.settle();
            script(user);
        } catch (...) {
            // Ends all windows that the script has left open.
            if (!over) PostThreadMessageW(thread, WM_QUIT, 0, 0);
            throw;
        }
    });
    std::exception_ptr failure;
    try {
        opening();
    } catch (...) {
        failure = std::current_exception();
    }
    over = true;
    // As a host does: its own loop goes on when the module is done.
    while (work.wait_for(std::chrono::milliseconds{1}) != std::future_status::ready) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
    work.get();
    if (failure) std::rethrow_exception(failure);
}

} // namespace tellurix::tests
