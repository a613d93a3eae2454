#pragma once

#include "module/ui/input/keys.h"

#include <string>
#include <variant>

namespace tellurix::ui {

class Control;
class TextBox;

/// What a user did, in neutral terms: a display translates its own events into these and hands
/// them to the Desktop, which applies the rules of input. Events without a control go to the one
/// that has the focus.

/// A key went down.
struct KeyDownEvent {
    KeyDown key;
    /// In a grid and with Ctrl held: how wide its current column is shown, in average characters. 0 where
    /// nobody has measured it; then it is as wide as it says.
    int columnWidth = 0;
};
/// Ctrl was pressed and released, and nothing else was done between.
struct PickKeyEvent {};
/// A character was typed, after the key-down event of its key.
struct KeyPressEvent {
    char32_t character = 0;
};
/// Alt with a character: looks for the access key.
struct AccessKeyEvent {
    char32_t character = 0;
};
/// The pointer, or a screen reader, put the focus on a control.
struct FocusEvent {
    Control* control = nullptr;
};
/// The display let the user edit a box by itself, and this came of it.
struct TextEditedEvent {
    TextBox* box = nullptr;
    std::string text;
    int selectionStart = 0;
    int selectionLength = 0;
};
/// The user moved the caret or the selection in a box.
struct SelectionEvent {
    TextBox* box = nullptr;
    int start = 0;
    int length = 0;
};
/// Text pasted at the selection of a box, or from the current cell of a grid on.
struct PasteEvent {
    Control* control = nullptr;
    std::string text;
};
/// A click on a button or check box.
struct ClickEvent {
    Control* control = nullptr;
};
/// The up or down half of an up-down control was pressed.
struct StepEvent {
    Control* control = nullptr;
    bool up = false;
};
/// An item of a list, a page of tabs, a bar of a chart, or a cell of a grid was chosen.
struct SelectEvent {
    Control* control = nullptr;
    int index = 0; ///< item, page, bar, or row
    int column = 0;
    bool extends = false; ///< with Shift held: marks the cells of a grid up to that one
};
struct DoubleClickEvent {
    Control* control = nullptr;
};
/// A click on the heading of a grid's column.
struct HeadingEvent {
    Control* control = nullptr;
    int column = 0;
};
struct ScrollEvent {
    Control* control = nullptr;
};
/// The user pulled the edge of a grid's column, or wants it to fit its texts.
struct ColumnSizedEvent {
    Control* control = nullptr;
    int column = 0;
    int width = 0; ///< in average characters; 0 to fit
};
/// The small button beside a box that has a picker.
struct PickEvent {
    Control* control = nullptr;
};
/// The offer in the window's status line was pressed.
struct StatusActionEvent {};
/// The window's close box.
struct CloseEvent {};

using Event =
    std::variant<KeyDownEvent, PickKeyEvent, KeyPressEvent, AccessKeyEvent, FocusEvent, TextEditedEvent,
                 SelectionEvent, PasteEvent, ClickEvent, StepEvent, SelectEvent, DoubleClickEvent,
                 HeadingEvent, ScrollEvent, ColumnSizedEvent, PickEvent, StatusActionEvent, CloseEvent>;

} // namespace tellurix::ui
