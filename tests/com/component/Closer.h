#pragma once

#include "tests/support/windows/WindowsUser.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace tellurix::tests {

inline BOOL CALLBACK takeEditor(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || WindowsUser::nameOf(window) != "F_Vertrag") return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// The contract editor that a thread shows, waited for as long as `meanwhile` allows; null for none.
template <typename Still>
HWND editorOf(DWORD thread, const Still& meanwhile) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds{20};
    while (meanwhile() && std::chrono::steady_clock::now() < deadline) {
        HWND editor = nullptr;
        EnumThreadWindows(thread, takeEditor, reinterpret_cast<LPARAM>(&editor));
        if (editor != nullptr) return editor;
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    return nullptr;
}

/// Closes the editor of the calling thread as soon as it is there.
class Closer {
public:
    Closer()
        : thread_([this, opener = GetCurrentThreadId()] {
              if (const HWND editor = editorOf(opener, [this] { return !over_; }))
                  PostMessageW(editor, WM_CLOSE, 0, 0);
          }) {}
    ~Closer() {
        over_ = true;
        thread_.join();
    }

private:
    std::atomic<bool> over_{false};
    std::thread thread_;
};

} // namespace tellurix::tests
