#pragma once

#include <pthread.h>

#include <cstddef>
#include <functional>
#include <memory>

namespace tellurix::browser {

/// A thread with a stack of chosen size: the platform's usual 8 MB would be reserved for each of
/// many sessions that mostly wait.
class SmallThread {
public:
    SmallThread() = default;
    /// Joins.
    ~SmallThread() { join(); }
    SmallThread(const SmallThread&) = delete;
    SmallThread& operator=(const SmallThread&) = delete;

    /// @param body must not throw
    /// @throws std::system_error when the system has no thread left
    void start(std::size_t stackBytes, std::function<void()> body);
    /// Waits for the body's end; does nothing when the thread was never started.
    void join();

private:
    pthread_t thread_{};
    bool running_ = false;
};

} // namespace tellurix::browser
