#include "tests/display/win32/ScreenTest.h"

#include "display/win32/native/endings.h"

#include <chrono>

namespace tellurix::tests {

HostThread::HostThread(Show show) {
    std::promise<void> started;
    std::promise<Outcome> outcome;
    outcome_ = outcome.get_future();
    std::future<void> ready = started.get_future();
    thread_ = std::thread{[this, show = std::move(show), &started, outcome = std::move(outcome)]() mutable {
        try {
            outcome.set_value(run(show, started));
        } catch (...) {
            outcome.set_exception(std::current_exception());
        }
    }};
    ready.wait();
}

HostThread::~HostThread() {
    if (!thread_.joinable()) return;
    end();
    thread_.join();
}

void HostThread::end() const {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
}

HostThread::Outcome HostThread::run(const Show& show, std::promise<void>& started) {
    id_ = GetCurrentThreadId();
    owner_ = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 800, 600,
                             nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(owner_);
    started.set_value();
    windows::Win32Display display{owner_};
    Outcome outcome;
    try {
        show(display);
    } catch (const windows::MessageLoopEnded&) {
        outcome.ended = true;
    } catch (const windows::OwnerClosed&) {
        outcome.ownerClosed = true;
    }
    closed_.set_value();
    outcome.ownerEnabled = IsWindowEnabled(owner_) != FALSE;
    outcome.ownerActive = GetActiveWindow() == owner_;
    // The host goes on with its own work until it is told to end.
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    DestroyWindow(owner_);
    return outcome;
}

HostThread::Outcome HostThread::join() {
    end();
    Outcome outcome = outcome_.get();
    thread_.join();
    return outcome;
}

bool eventually(const std::function<bool()>& holds) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds{10};
    while (!holds()) {
        if (std::chrono::steady_clock::now() > until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    return true;
}

::testing::AssertionResult isOpen(const WindowsUser& user, const std::string& form) {
    const bool open = eventually([&] {
        HWND top = user.top();
        return top != nullptr && WindowsUser::nameOf(top) == form && !user.focused().empty();
    });
    if (open) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the topmost window is not " << form;
}

} // namespace tellurix::tests
