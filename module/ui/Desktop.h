#pragma once

#include "module/ui/Display.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/events.h"
#include "module/ui/input/grid_keys.h"

#include <functional>
#include <vector>

namespace tellurix::ui {

/// The windows that one user has open, the topmost of which gets the input, and the rules of input
/// that are the same on every display:
///
/// - Tab and Shift+Tab go through the layout's order; Enter in a box acts as Tab.
/// - Getting the focus selects the whole text of a box.
/// - Leaving a control asks its `onLeave` first, and a refusal takes the focus back. A click on a
///   button leaves the box before it presses the button, unless the button throws input away.
/// - Ctrl pressed and released alone, F4, and the small button beside a box
///   open its picker.
/// - Alt with a letter presses the button, ticks the box or goes to the field with that access key;
///   where several have it, it goes from one to the next. The offer in the status line comes after them.
/// - Esc closes what is open inside the screen, then presses the cancel button, or closes the window; Ctrl+S
///   presses the primary button, F1 shows the keys of the window.
/// - In a grid a letter goes to the row that begins with it, and Ctrl with Enter is a click on the
///   heading of the current column (grid_keys.h has the other keys).
/// - Characters go through the box's key filter, pasted ones too. A box that a display has edited by
///   itself keeps the new text where that needs no filter; else it is typed in place of the old one.
///   A text that comes at once is one change, however long it is. What is not taken makes the box flash and
///   say what it takes; Ctrl+Z takes back in one go what was typed in one go, where no display does.
///
/// An error inside an event goes to the host's error handling, and the window stays as it is. Where it
/// is about what stands in one control (`RefusedInput`), that control gets the focus.
class Desktop {
public:
    /// @param display shows the keys of a window
    Desktop(ErrorHandling& errors, Display& display) : errors_(errors), display_(display) {}

    /// Shows a form and handles events for it until it has been unloaded.
    /// @param nextEvent draws what is dirty and waits for the user; an exception thrown by it that is
    ///        no std::exception ends all open windows without asking them
    void runModal(Form& form, const std::function<Event()>& nextEvent);

    /// The open windows, the topmost last.
    const std::vector<Form*>& windows() const { return windows_; }
    Form* top() const { return windows_.empty() ? nullptr : windows_.back(); }

    /// Handles one event for the topmost window. Never throws an std::exception.
    void dispatch(const Event& event);

    /// Does a piece of what the topmost window wants to be done when there is time (`Form::later`). A display
    /// calls it while no event waits, and draws what came of it. An error in it is handled as one in an
    /// event.
    /// @return false when there is nothing to do
    bool doLater();

private:
    void handle(Form& form, const KeyDownEvent& event);
    void handle(Form& form, const PickKeyEvent& event);
    void handle(Form& form, const KeyPressEvent& event);
    void handle(Form& form, const AccessKeyEvent& event);
    void handle(Form& form, const FocusEvent& event);
    void handle(Form& form, const TextEditedEvent& event);
    void handle(Form& form, const SelectionEvent& event);
    void handle(Form& form, const PasteEvent& event);
    void handle(Form& form, const ClickEvent& event);
    void handle(Form& form, const StepEvent& event);
    void handle(Form& form, const SelectEvent& event);
    void handle(Form& form, const DoubleClickEvent& event);
    void handle(Form& form, const HeadingEvent& event);
    void handle(Form& form, const ScrollEvent& event);
    void handle(Form& form, const ColumnSizedEvent& event);
    void handle(Form& form, const PickEvent& event);
    void handle(Form& form, const StatusActionEvent& event);
    void handle(Form& form, const CloseEvent& event);

    /// Asks the control that has the focus; a refusal takes the focus back.
    /// @return false also when its handler closed the window or sent the focus elsewhere
    static bool leave(Form& form);
    /// Gives the focus to the control that has to be put right, wherever it is.
    void goTo(Control& control);
    /// Goes from the focused control to another one, by the rules of leaving.
    bool moveFocus(Form& form, Control& to);
    void moveByTab(Form& form, bool backwards);
    /// Does what a click, Space or Enter on a button or check box does.
    void press(Form& form, Control& control);
    void pick(Form& form, Control& control);
    /// Does what a key does whichever control has the focus. @return false for all other keys
    bool windowKey(Form& form, const KeyDown& key);
    void enter(Form& form, Control& control, const KeyDown& key);
    /// What a key does in a grid that is not the same in every control.
    void gridKey(Form& form, Grid& grid, const KeyDownEvent& event);
    void showKeys(const Form& form);

    ErrorHandling& errors_;
    Display& display_;
    std::vector<Form*> windows_;
    RowSearch search_;
    bool showsKeys_ = false;
};

} // namespace tellurix::ui
