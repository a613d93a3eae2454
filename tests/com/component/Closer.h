#pragma once

#include "tests/support/windows/WindowsUser.h"

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <utility>

namespace tellurix::tests {

/// The form that is looked for, and its window once it was found.
struct ShownForm {
    std::string name;
    HWND window = nullptr;
};

inline BOOL CALLBACK takeForm(HWND window, LPARAM wanted) {
    auto& form = *reinterpret_cast<ShownForm*>(wanted);
    if (!IsWindowVisible(window) || WindowsUser::nameOf(window) != form.name) return TRUE;
    form.window = window;
    return FALSE;
}

/// The form that a thread shows, waited for as long as `meanwhile` allows; null for none.
template <typename Still>
HWND formOf(DWORD thread, const std::string& name, const Still& meanwhile) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds{20};
    while (meanwhile() && std::chrono::steady_clock::now() < deadline) {
        ShownForm form{name};
        EnumThreadWindows(thread, takeForm, reinterpret_cast<LPARAM>(&form));
        if (form.window != nullptr) return form.window;
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    return nullptr;
}

/// The contract editor that a thread shows.
template <typename Still>
HWND editorOf(DWORD thread, const Still& meanwhile) {
    return formOf(thread, "F_Vertrag", meanwhile);
}

/// Closes a form of the calling thread as soon as it is there.
class Closer {
public:
    explicit Closer(std::string form = "F_Vertrag")
        : thread_([this, form = std::move(form), opener = GetCurrentThreadId()] {
              if (const HWND window = formOf(opener, form, [this] { return !over_; })) {
                  closed_ = true;
                  PostMessageW(window, WM_CLOSE, 0, 0);
              }
          }) {}
    ~Closer() {
        over_ = true;
        thread_.join();
    }

    /// Whether the form was there.
    bool closed() const { return closed_; }

private:
    std::atomic<bool> over_{false};
    std::atomic<bool> closed_{false};
    std::thread thread_;
};

} // namespace tellurix::tests
