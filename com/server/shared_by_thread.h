#pragma once

#include <memory>

namespace tellurix::windows {

/// The one object of its type that the COM objects of the calling thread (its apartment) share. It is
/// made when there is none, and goes with the last of those who hold it.
/// @tparam T derived from std::enable_shared_from_this
template <typename T>
std::shared_ptr<T> sharedByThread() {
    // A plain pointer, as a value with a destructor would keep the DLL in memory until the thread ends,
    // and then unload it from under its own code.
    thread_local T* present = nullptr;
    if (present != nullptr) return present->shared_from_this();
    std::shared_ptr<T> made(new T, [](T* last) {
        present = nullptr;
        delete last;
    });
    present = made.get();
    return made;
}

} // namespace tellurix::windows
