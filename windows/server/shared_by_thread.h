#pragma once

#include <memory>

namespace tellurix::windows {

/// The one object of its type that the COM objects of the calling thread (its apartment) share. It is
/// made when there is none, and goes with the last of those who hold it.
template <typename T>
std::shared_ptr<T> sharedByThread() {
    thread_local std::weak_ptr<T> present;
    std::shared_ptr<T> shared = present.lock();
    if (!shared) {
        shared = std::make_shared<T>();
        present = shared;
    }
    return shared;
}

} // namespace tellurix::windows
