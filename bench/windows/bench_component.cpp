// How long a contract takes to come up through COM, and how much memory an open editor needs:
//     bench_component DATABASE
// Shown is what is painted: the moment at which the thread has nothing to do but wait for the user.
#include "bench/support/measure.h"
#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "standin/windows_host/ComContractOpener.h"
#include "standin/windows_host/libraries.h"

#include <psapi.h>

#include <iostream>

namespace tellurix::bench {
namespace {

struct NoArticles final : host::HostMainWindow {
    bool IsArtikel() override { return false; }
};

/// What one opening came to. A timer of Windows comes when everything else has been done.
struct Opening {
    Clock::time_point start = Clock::now();
    Clock::time_point shown;
    std::size_t memory = 0;
};
Opening opening;

std::size_t memoryInUse() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

void CALLBACK idle(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND screen = GetActiveWindow();
    if (GetPropW(screen, L"Tellurix.Name") == nullptr || !IsWindowVisible(screen)) return;
    opening.shown = Clock::now();
    opening.memory = memoryInUse();
    KillTimer(nullptr, timer);
    PostMessageW(screen, WM_CLOSE, 0, 0);
}

Clock::duration open(windows::ComContractOpener& opener) {
    SetTimer(nullptr, 0, USER_TIMER_MINIMUM, idle);
    opening = {};
    opener.open({.id = 1, .name = "R-2025-001 Fichte Wolfsberg", .type = "R", .caption = "Vertrag"});
    return opening.shown - opening.start;
}

void measure(const std::string& file) {
    constexpr int repetitions = 50;
    windows::registerLibraries();
    CreateWindowW(L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400, 300, nullptr, nullptr,
                  nullptr, nullptr);
    auto connection = windows::Dispatch::create("Tellurix_Loc.EmbeddedConnection");
    connection.call(L"Open", {file});
    const host::TlxVar session{.homeCurrency = "CHF", .site = {}, .user = "bench"};
    windows::ComContractOpener opener{connection, session, std::make_shared<NoArticles>()};

    const std::size_t before = memoryInUse();
    Durations first;
    first.add(open(opener));
    const std::size_t during = opening.memory;
    Durations later;
    for (int i = 0; i < repetitions; ++i)
        later.add(open(opener));
    std::cout << "first opening, library loaded in it: " << first.median() / 1000 << " ms\n"
              << "later openings: median " << later.median() / 1000 << " ms, 95 % "
              << later.percentile(95) / 1000 << " ms\n"
              << "memory: " << before / 1024 << " KiB before, " << during / 1024
              << " KiB with the first editor open, " << opening.memory / 1024 << " KiB with the last one\n";
}

} // namespace
} // namespace tellurix::bench

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: bench_component DATABASE\n";
        return 2;
    }
    try {
        tellurix::windows::check(::OleInitialize(nullptr), "OleInitialize");
        tellurix::bench::measure(arguments[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
