#pragma once

#include "display/win32/EventQueue.h"
#include "display/win32/StatusBar.h"
#include "display/win32/WaitingWindows.h"
#include "display/win32/WindowContent.h"
#include "display/win32/controls/ControlView.h"
#include "display/win32/keys/Keyboard.h"
#include "display/win32/native/ToolTips.h"
#include "module/ui/Form.h"

#include <exception>
#include <memory>
#include <optional>
#include <vector>

namespace tellurix::windows {

/// The window of one form: it owns the views of the controls, arranges them as the layout says, and
/// gathers what the user does as events. All other windows of the thread wait while it is open.
class WindowFrame final : private ViewHost {
public:
    /// Makes the window, while a `SystemLook` lives; the first drawing shows it.
    /// @param owner the window it belongs to, null for none
    /// @param display lives longer than the window, and may change meanwhile
    WindowFrame(ui::Form& form, HWND owner, const DisplayState& display);
    ~WindowFrame();
    WindowFrame(const WindowFrame&) = delete;
    WindowFrame& operator=(const WindowFrame&) = delete;

    HWND window() const override { return window_; }
    /// The window has gone without having been closed here: along with the one it belongs to.
    bool lost() const { return window_ == nullptr; }
    /// Shows what changed, unless it is lost.
    void draw();
    /// Gives the native focus to the control that has the form's.
    void placeFocus();
    /// A message that the thread has fetched for any of its windows.
    void fetched(UINT message) { keyboard_.fetched(message); }

    /// What the user did in it.
    EventQueue& events() { return events_; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    /// Messages that a control's native window sends or has sent. @return nothing for all others
    std::optional<LRESULT> handleForControl(UINT message, WPARAM wParam, LPARAM lParam);
    /// Messages about the size of the window and what is seen of its content.
    std::optional<LRESULT> handleForContent(UINT message, WPARAM wParam, LPARAM lParam);
    /// The view that a native window belongs to, or null: anybody can send a message that names one.
    ControlView* viewWith(HWND window) const;

    const Theme& theme() const override { return theme_; }
    const DisplayState& display() const override { return display_; }
    void happened(ui::Event event) override;
    ControlView& viewOf(const ui::Control& control) override { return *views_[control.id()]; }
    bool isFocused(const ControlView& view) const override;
    bool keyboard(ControlView& view, UINT message, WPARAM wParam, LPARAM lParam) override;
    void roomChanged() override {
        if (content_ != nullptr) content_->roomChanged();
    }
    void setToolTip(HWND over, const std::string& text) override { toolTips_->set(over, text); }
    void failed(std::exception_ptr error) override { events_.failed(error); }

    void makeWindow();
    void makeViews();
    void makeViews(const ui::Layout& layout, bool onPage);
    void show();
    void drawPrimary();
    void lookChanged(UINT message, WPARAM wParam, LPARAM lParam);
    void close();

    ui::Form& form_;
    HWND owner_;
    const DisplayState& display_;
    Theme theme_;
    WaitingWindows waiting_;
    HWND window_ = nullptr;
    std::unique_ptr<ToolTips> toolTips_;
    std::vector<std::unique_ptr<ControlView>> views_; ///< by the controls' ids
    std::optional<StatusBar> status_;
    std::unique_ptr<WindowContent> content_; ///< null until it is shown
    Keyboard keyboard_;
    EventQueue events_;
    const ui::Button* primary_ = nullptr; ///< as it is drawn
    bool ending_ = false;                 ///< the windows are going
};

} // namespace tellurix::windows
