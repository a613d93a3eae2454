#pragma once

#include "module/ui/input/keys.h"
#include "module/ui/message_box.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tellurix::tests {

/// Acts for a user on the native windows of a thread, from another thread of the same process: with a
/// real keyboard, and with the mouse messages of a real pointer. Knows the controls by their names
/// alone. Every action waits until the thread has dealt with it and waits for the next one.
class WindowsUser {
public:
    /// @param thread the one whose windows are worked
    explicit WindowsUser(DWORD thread);
    ~WindowsUser();
    WindowsUser(const WindowsUser&) = delete;
    WindowsUser& operator=(const WindowsUser&) = delete;

    /// The window that takes the input; null while a message waits, or none has been opened yet.
    HWND top() const;
    /// Neutral name of a form or control; empty for a window that has none.
    static std::string nameOf(HWND window);
    /// Name of the control that the keys go to.
    std::string focused() const;
    /// @throws std::runtime_error when the topmost window has no such control, or it is not to be seen
    HWND control(const std::string& name) const;
    /// What a control says: text of a box or label, entry of a list, "ja" or "nein" of a tick.
    static std::string textOf(HWND control);
    /// The text that stands beside a control as its error, empty for none.
    static std::string errorOf(HWND control);
    /// What stands under a box that has not taken something, empty for nothing.
    static std::string hintOf(HWND control);
    /// Texts of a grid's row, from 0; none where there is no such row.
    static std::vector<std::string> rowOf(HWND grid, int row);

    void key(const ui::KeyDown& key);
    void type(const std::string& text);
    /// Does something while Ctrl is held.
    void withCtrl(const std::function<void()>& act);
    /// Turns the wheel over a window. @param keys MK_SHIFT and the like
    void wheel(HWND window, int delta, WORD keys = 0, UINT message = WM_MOUSEWHEEL);
    /// Presses and releases the left button in the middle of a window, or at a fraction of its height.
    void click(HWND window, int part = 1, int parts = 2);
    /// A click on the first column of a grid's row, or two quick ones.
    /// @throws std::runtime_error when there is no such row
    void clickRow(HWND grid, int row, bool twice);
    static bool isGrid(HWND control);
    void close();
    /// Chooses the entry of a list that can be folded down. @return false when it has none like that
    bool choose(HWND list, const std::string& entry);

    /// The message box that waits for an answer, or null.
    HWND message() const;
    static std::string messageText(HWND message);
    void answer(HWND message, ui::Answer answer);

    /// Waits until everything that was sent before has been dealt with.
    /// @throws std::runtime_error when the thread does not come to it
    void settle() const;

private:
    static void post(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void press(HWND window, UINT message, POINT place);

    DWORD thread_;
    HHOOK hook_;
};

} // namespace tellurix::tests
