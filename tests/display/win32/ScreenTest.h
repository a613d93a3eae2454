#pragma once

#include "display/win32/Win32Display.h"
#include "tests/support/windows/WindowsUser.h"

#include <gtest/gtest.h>

#include <functional>
#include <future>
#include <string>
#include <thread>

namespace tellurix::tests {

/// A host thread with a window of its own that shows a screen over it.
class HostThread {
public:
    /// What a host knows after the screen was closed.
    struct Outcome {
        bool ownerEnabled = false;
        bool ownerActive = false;
        bool ended = false;       ///< by the end of the message loop
        bool ownerClosed = false; ///< along with the owner
    };
    using Show = std::function<void(windows::Win32Display&)>;

    explicit HostThread(Show show);
    ~HostThread();
    HostThread(const HostThread&) = delete;
    HostThread& operator=(const HostThread&) = delete;

    DWORD id() const { return id_; }
    HWND owner() const { return owner_; }
    /// Ends the host's message loop, and with it the screens that are still open.
    void end() const;
    /// Closes the host's window, while its message loop goes on.
    void closeOwner() const { PostMessageW(owner_, WM_CLOSE, 0, 0); }
    /// Waits until no screen is open any more.
    void waitUntilClosed() { closed_.get_future().wait(); }
    /// Ends the host and waits for it.
    Outcome join();

private:
    Outcome run(const Show& show, std::promise<void>& started);

    DWORD id_ = 0;
    HWND owner_ = nullptr;
    std::promise<void> closed_;
    std::future<Outcome> outcome_;
    std::thread thread_;
};

/// Waits until something has become true, some seconds at most.
bool eventually(const std::function<bool()>& holds);

/// Waits until the topmost window is the form of that name.
::testing::AssertionResult isOpen(const WindowsUser& user, const std::string& form);

} // namespace tellurix::tests
