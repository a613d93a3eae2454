#pragma once

#include <windows.h>

#include <memory>
#include <utility>

namespace tellurix::windows {

/// A plain value for each thread that outlives the thread's COM objects. It is freed when the thread ends
/// or the DLL is unloaded, whichever comes first. Both happen where nothing of COM may be used any more, so
/// the value must hold memory alone. To be a static value of the DLL.
///
/// It hangs on a slot of Windows that calls back, and not on a `thread_local` value: that one's destructor
/// would keep the DLL in memory until the thread ends.
template <typename T>
class ThreadMemory {
public:
    ThreadMemory() = default;
    /// Frees the values of all threads.
    ~ThreadMemory() { FlsFree(slot_); }
    ThreadMemory(const ThreadMemory&) = delete;
    ThreadMemory& operator=(const ThreadMemory&) = delete;

    void put(T value) {
        auto held = std::make_unique<T>(std::move(value));
        take();
        if (FlsSetValue(slot_, held.get()) != FALSE) held.release();
    }
    /// The calling thread's value, an empty one when there is none. It is the caller's then.
    T take() {
        const std::unique_ptr<T> held(static_cast<T*>(FlsGetValue(slot_)));
        if (!held) return {};
        FlsSetValue(slot_, nullptr);
        return std::move(*held);
    }

private:
    static void WINAPI release(void* held) { delete static_cast<T*>(held); }

    DWORD slot_ = FlsAlloc(release);
};

} // namespace tellurix::windows
