#pragma once

#include "module/ui/Form.h"
#include "module/ui/message_box.h"

#include <optional>
#include <string>
#include <string_view>

namespace tellurix::ui {

/// The only way out to the user. Screens call it; each platform has one.
class Display {
public:
    virtual ~Display() = default;

    /// Shows a form as the topmost window, with all others waiting, until it has been unloaded.
    virtual void showModal(Form& form) = 0;

    /// Shows a message and waits for the answer.
    /// @param flags buttons, icon and default button (see `box`)
    virtual Answer messageBox(const std::string& text, int flags, const std::string& title) = 0;

    /// Lets the user choose a file to open.
    /// @param filter "PDF file (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*"
    /// @return its path, or nothing when the user cancelled
    virtual std::optional<std::string> openFile(const std::string& title, const std::string& filter) = 0;

    /// Hands the user a file that was made for them: opens it with its program, or lets them save it.
    /// @param name its name without a path
    virtual void presentFile(const std::string& name, const std::string& content) = 0;

    /// Shows or removes the hourglass. Use `BusyPointer`.
    virtual void setBusy(bool busy) = 0;

    /// Draws what changed so far, in the middle of a long operation.
    virtual void refresh() = 0;
};

/// Shows the hourglass as long as it lives.
class BusyPointer {
public:
    explicit BusyPointer(Display& display) : display_(display) { display_.setBusy(true); }
    ~BusyPointer() { display_.setBusy(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Display& display_;
};

/// Where an error goes that happened inside one event of an open screen. It shows the error; the
/// screen stays open with everything the user typed.
class ErrorHandling {
public:
    virtual ~ErrorHandling() = default;
    virtual void report(const std::exception& error) = 0;
};

} // namespace tellurix::ui
