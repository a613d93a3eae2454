#pragma once

#include "bench/support/PageState.h"
#include "bench/support/measure.h"
#include "display/browser/session/PageChannel.h"
#include "module/ui/message_box.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tellurix::bench {

/// One thing that the user of a scripted page does.
struct Step {
    std::string form;    ///< which has to be in front; empty for a message box
    std::string control; ///< empty for the window itself
    browser::PageMessage message;
};

Step click(std::string form, std::string control);
Step focus(std::string form, std::string control);
/// The text of a box without a filter, as the browser has edited it.
Step edit(std::string form, std::string control, std::string text);
/// A character for the focused box.
Step character(std::string form, char32_t typed);
Step pick(std::string form, std::string control);
Step chooseRow(std::string form, std::string grid, int row);
Step closeWindow(std::string form);
Step answer(ui::Answer button);

/// A page without a browser: does the next step of its script whenever the session waits for the
/// user, and notes when which form was drawn. The session runs in the caller's own thread.
///
/// A script that does not fit what is shown, or ends while something is still open, is told on
/// standard error and ends the session.
class ScriptedPage final : public browser::PageChannel {
public:
    void play(std::vector<Step> script);
    /// Told of every wait, before the next step is done.
    std::function<void()> onWait;

    /// When the session sent the first drawing of that form since `play`.
    /// @throws std::out_of_range when there was none
    Clock::time_point drawnAt(const std::string& form) const { return drawn_.at(form); }

    browser::SessionFiles& files() override { return files_; }
    browser::PageMessage next() override;
    /// What is to be done when there is time is done before each step.
    bool waiting() override { return false; }
    void send(std::string drawing) override;
    void sendComplete(std::string drawing, const browser::PageMessage& redraw) override;

private:
    PageState state_;
    browser::SessionFiles files_;
    std::deque<Step> script_;
    std::map<std::string, Clock::time_point> drawn_;
    std::uint64_t number_ = 0;
};

} // namespace tellurix::bench
