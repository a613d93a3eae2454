#pragma once

#include "display/browser/session/SessionFiles.h"
#include "display/browser/session/page_message.h"

#include <string>

namespace tellurix::browser {

/// Thrown out of every wait for the user once the session is over: the browser stayed away too
/// long, or the workbench stops. It unwinds through all open screens without asking them, so
/// nothing is written.
///
/// Deliberately no std::exception: whoever handles errors must not take this for one and go on.
struct SessionEnded {};

/// What a browser display talks to: the page, wherever it is at the moment.
class PageChannel {
public:
    virtual ~PageChannel() = default;

    /// Waits for the next thing the user does.
    /// @throws SessionEnded
    virtual PageMessage next() = 0;

    /// Whether the user has already done something.
    virtual bool waiting() = 0;

    /// The files that go between the session and its page.
    virtual SessionFiles& files() = 0;

    /// Sends a drawing. While no page is connected it goes nowhere: a page that connects asks for
    /// everything.
    virtual void send(std::string drawing) = 0;
    /// Answers a redraw message with everything: from then on the page that sent it is up to date.
    virtual void sendComplete(std::string drawing, const PageMessage& redraw) = 0;
};

} // namespace tellurix::browser
