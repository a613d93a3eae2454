#include "display/win32/EventQueue.h"

#include "com/automation/com.h"

#include <utility>

namespace tellurix::windows {

void EventQueue::put(ui::Event event) {
    if (!listening_) return;
    events_.push_back(std::move(event));
    wake();
}

ui::Event EventQueue::take() {
    ui::Event event = std::move(events_.front());
    events_.pop_front();
    return event;
}

void EventQueue::failed(std::exception_ptr error) {
    failure_ = error;
    wake();
}

void EventQueue::throwFailure() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void EventQueue::wake() {
    PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

} // namespace tellurix::windows
