#pragma once

#include "display/win32/DisplayState.h"
#include "module/ui/Desktop.h"
#include "module/ui/DisplayErrors.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace tellurix::windows {

class WindowFrame;

/// The display for Windows: each form is a top-level window with native controls. It belongs to the
/// thread that made it; several threads may have one each. Where the thread or the host's window ends
/// while something is open, it throws what `endings.h` says.
class Win32Display final : public ui::Display {
public:
    /// @param owner window of the host that waits while a screen is open; null for none
    explicit Win32Display(HWND owner = nullptr);
    ~Win32Display() override;
    Win32Display(const Win32Display&) = delete;
    Win32Display& operator=(const Win32Display&) = delete;

    /// Another window to wait while a screen is open; for the screens that are shown from now on.
    void setOwner(HWND owner) { owner_ = owner; }
    /// Where errors inside an event of an open screen go. Without it they are shown as a message.
    /// @param errors outlives the display's last use, or is replaced by null
    void setErrorHandling(ui::ErrorHandling* errors) { told_.setHost(errors); }
    /// Language of the display's own texts: "de" (the default) or "en". The buttons of message boxes
    /// and file dialogs are in the language of Windows.
    void setLanguage(std::string language) { state_.language = std::move(language); }

    void showModal(ui::Form& form) override;
    ui::Answer messageBox(const std::string& text, int flags, const std::string& title) override;
    std::optional<std::string> openFile(const std::string& title, const std::string& filter) override;
    void presentFile(const std::string& name, const std::string& content) override;
    void setBusy(bool busy) override;
    void refresh() override;

private:
    /// An error that comes of the end of the thread or the owner is told to nobody: it ends the screens.
    struct Errors final : ui::ErrorHandling {
        explicit Errors(Win32Display& shownOn) : display(shownOn) {}
        void report(const std::exception& error) override;
        Win32Display& display;
    };

    ui::Event nextEvent();
    void draw();
    /// The window that a dialog of Windows belongs to. @throws OwnerClosed when it has gone
    HWND topWindow() const;

    HWND owner_;
    ui::DisplayErrors told_{*this};
    Errors errors_{*this};
    ui::Desktop desktop_{errors_, *this};
    std::vector<std::unique_ptr<WindowFrame>> windows_; ///< the topmost last
    DisplayState state_;
};

} // namespace tellurix::windows
