#include "display/win32/Win32Display.h"

#include "com/automation/wide.h"
#include "display/win32/WindowFrame.h"
#include "display/win32/native/endings.h"
#include "display/win32/native/file_dialog.h"
#include "display/win32/native/present_file.h"

#include <stdexcept>
#include <utility>

namespace tellurix::windows {

Win32Display::Win32Display(HWND owner) : owner_(owner) {}

Win32Display::~Win32Display() = default;

void Win32Display::Errors::report(const std::exception& error) {
    throwIfEnded(display.topWindow());
    display.told_.report(error);
}

HWND Win32Display::topWindow() const {
    const bool lost = windows_.empty() ? owner_ != nullptr && !IsWindow(owner_) : windows_.back()->lost();
    if (lost) throw OwnerClosed{};
    if (!windows_.empty()) return windows_.back()->window();
    return owner_ == nullptr ? nullptr : GetAncestor(owner_, GA_ROOT);
}

void Win32Display::showModal(ui::Form& form) {
    struct Shown {
        // A window that opens in the middle of a long operation is not busy itself.
        explicit Shown(Win32Display& on, ui::Form& form)
            : display(on), busyBelow(std::exchange(on.state_.busy, 0)) {
            const SystemLook look;
            display.windows_.push_back(
                std::make_unique<WindowFrame>(form, display.topWindow(), display.state_));
        }
        ~Shown() {
            display.windows_.pop_back();
            display.state_.busy = busyBelow;
        }
        Shown(const Shown&) = delete;
        Shown& operator=(const Shown&) = delete;
        Win32Display& display;
        int busyBelow;
    };
    const Shown shown{*this, form};
    desktop_.runModal(form, [this] { return nextEvent(); });
}

ui::Event Win32Display::nextEvent() {
    draw();
    WindowFrame& top = *windows_.back();
    if (top.lost()) throw OwnerClosed{};
    struct Listening {
        explicit Listening(EventQueue& queue) : events(queue) { events.listen(true); }
        ~Listening() { events.listen(false); }
        Listening(const Listening&) = delete;
        Listening& operator=(const Listening&) = delete;
        EventQueue& events;
    };
    const auto listeningWhile = [&top](const auto& messagesComeIn) {
        {
            const Listening listening{top.events()};
            messagesComeIn();
        }
        if (top.lost()) throw OwnerClosed{};
        top.events().throwFailure();
    };
    while (top.events().empty()) {
        MSG message{};
        bool nothingWaits = false;
        // To look for a message hands over those that other threads send.
        listeningWhile([&] { nothingWaits = PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) == FALSE; });
        if (!top.events().empty()) break;
        if (nothingWaits && desktop_.doLater()) {
            draw();
            continue;
        }
        // A native control may have taken the focus without anything having come of it.
        if (GetCapture() == nullptr) top.placeFocus();
        listeningWhile([&] {
            if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
                PostQuitMessage(static_cast<int>(message.wParam));
                throw MessageLoopEnded{};
            }
            top.fetched(message.message);
            TranslateMessage(&message);
            DispatchMessageW(&message);
        });
    }
    return top.events().take();
}

void Win32Display::draw() {
    for (const auto& window : windows_)
        window->draw();
    if (!windows_.empty()) windows_.back()->placeFocus();
}

ui::Answer Win32Display::messageBox(const std::string& text, int flags, const std::string& title) {
    draw();
    const SystemLook look;
    HWND owner = topWindow();
    const UINT style = static_cast<UINT>(flags) | (owner == nullptr ? MB_TASKMODAL : 0U);
    const int pressed = MessageBoxW(owner, widen(text).c_str(), widen(title).c_str(), style);
    // WM_QUIT passes for an answer, and the end of the owner for one or for a failure.
    throwIfEnded(owner);
    if (pressed == 0) throw std::runtime_error{"Windows could not show the message: " + text};
    return static_cast<ui::Answer>(pressed);
}

std::optional<std::string> Win32Display::openFile(const std::string& title, const std::string& filter) {
    draw();
    HWND owner = topWindow();
    auto chosen = chooseFile(owner, title, filter);
    throwIfEnded(owner);
    return chosen;
}

void Win32Display::presentFile(const std::string& name, const std::string& content) {
    draw();
    openWithItsProgram(topWindow(), name, content);
}

void Win32Display::setBusy(bool busy) {
    state_.busy += busy ? 1 : -1;
    SetCursor(LoadCursorW(nullptr, state_.busy > 0 ? IDC_WAIT : IDC_ARROW));
    if (busy) refresh();
}

void Win32Display::refresh() {
    draw();
    for (const auto& window : windows_)
        if (!window->lost())
            RedrawWindow(window->window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

} // namespace tellurix::windows
