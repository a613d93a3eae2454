#pragma once

#include "module/ui/input/events.h"

#include <deque>
#include <exception>

namespace tellurix::windows {

/// What the user did in a window and the rules of input have not seen yet. Window procedures put into
/// it, the loop that waits for messages takes out.
class EventQueue {
public:
    /// While it listens, what is put in is what the user did. What windows report at other times was
    /// caused by the program, and is dropped.
    void listen(bool listening) { listening_ = listening; }
    bool listening() const { return listening_; }
    void put(ui::Event event);
    bool empty() const { return events_.empty(); }
    ui::Event take();

    /// Keeps what went wrong inside a window procedure, through which no exception may pass.
    void failed(std::exception_ptr error);
    /// Throws it, once.
    void throwFailure();

    /// Ends the waiting for the next message. A message that was sent is dealt with inside that waiting,
    /// so whatever it put into the queue would lie there. It goes to the thread: the window may have gone.
    static void wake();

private:
    std::deque<ui::Event> events_;
    std::exception_ptr failure_;
    bool listening_ = false;
};

} // namespace tellurix::windows
