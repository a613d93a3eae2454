#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/input/key_use.h"

#include <functional>

namespace tellurix::windows {

/// Translates keyboard messages into events, and knows which of them the native controls keep:
/// typing and moving inside a box, looking for an item by its first letter.
class Keyboard {
public:
    /// @param tell takes an event, preceded by the selection of the box that has the focus
    explicit Keyboard(std::function<void(ControlView*, ui::Event)> tell) : tell_(std::move(tell)) {}

    /// Deals with a message if it is the keyboard's.
    /// @param view the view that got the message, null for the window itself
    /// @return false when the native control gets it
    bool handle(ControlView* view, UINT message, WPARAM wParam, LPARAM lParam);
    /// What Ctrl was pressed for was not the picker.
    void forgetCtrl() { ctrlAlone_ = false; }
    /// A message for whatever window: Ctrl held while the mouse is used does not pick.
    void fetched(UINT message);

private:
    bool down(ControlView* view, WPARAM code, LPARAM details);
    bool up(ControlView* view, WPARAM code);
    bool character(ControlView* view, wchar_t unit);
    static ui::KeyUse useOf(const ControlView* view, const ui::KeyDown& key);

    std::function<void(ControlView*, ui::Event)> tell_;
    bool ctrlAlone_ = false;
    wchar_t highSurrogate_ = 0; ///< the first half of a character beyond 16 bits
};

} // namespace tellurix::windows
