#pragma once

#include "display/win32/native/Theme.h"

#include <windows.h>

#include <string>

namespace tellurix::windows {

/// What stands beside a control that has an error: a sign and the text. Its windows are made when there
/// is something to say for the first time, and go with the window that they stand in.
class ErrorSign {
public:
    ErrorSign(const Theme& theme, HWND window) : theme_(theme), window_(window) {}
    ~ErrorSign();
    ErrorSign(const ErrorSign&) = delete;
    ErrorSign& operator=(const ErrorSign&) = delete;

    /// @param text empty for no error
    /// @param about the control's own window: the words keep it as their user data, for those who look for
    /// them
    void show(const std::string& text, HWND about);
    bool shown() const { return !text_.empty(); }
    /// The room that it takes beside the control, with the gap; 0 x 0 when there is nothing to show.
    SIZE size() const;
    void place(const RECT& rect);
    void setVisible(bool visible);
    bool has(HWND window) const { return window == icon_ || window == words_; }

private:
    const Theme& theme_;
    HWND window_;
    HWND icon_ = nullptr;
    HWND words_ = nullptr;
    HICON picture_ = nullptr;
    std::string text_;
};

} // namespace tellurix::windows
