#pragma once

#include "module/ui/Desktop.h"
#include "module/ui/controls/Grid.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::tests {

/// Acts for a user on the topmost window: finds controls by name, types keys, presses, closes. Every
/// action goes through the desktop, as a real display's events do.
class User {
public:
    explicit User(ui::Desktop& desktop) : desktop_(desktop) {}

    /// Goes to a box as with the pointer and types over its text, key by key.
    void type(std::string_view control, std::string_view text);
    /// Types into whatever has the focus.
    void type(std::string_view text);
    void key(ui::Key key, bool shift = false);
    void key(const ui::KeyDown& key) { desktop_.dispatch(ui::KeyDownEvent{key}); }
    /// Ctrl pressed and released alone.
    void ctrl();
    /// Alt with a letter.
    void alt(char32_t letter);
    void click(std::string_view control);
    void focus(std::string_view control);
    /// Puts a text into a box that its key filter would not let through.
    void replaceText(std::string_view control, std::string_view text);
    void paste(std::string_view control, std::string_view text);
    /// What Ctrl+C puts on the clipboard in a grid.
    std::string copied(std::string_view control, bool withHeadings = false);
    void select(std::string_view control, int index, int column = 0, bool extends = false);
    void doubleClick(std::string_view control);
    void clickHeading(std::string_view control, int column);
    void scroll(std::string_view control);
    /// Does nothing for a while: what waits for that is done.
    void pause();
    /// The window's close box.
    void close();

    ui::Form& window();
    /// Name of the focused control, empty for none.
    std::string focused();
    std::string text(std::string_view control);
    std::string tag(std::string_view control);
    std::string caption(std::string_view control);
    bool checked(std::string_view control);
    /// What stands beside it as its error.
    std::string error(std::string_view control);
    /// What stands under a box that has not taken something.
    std::string refusal(std::string_view control);
    /// Ctrl with a letter.
    void ctrl(char letter);
    /// The text in the status line, with what it offers behind "|": "Gelöscht|&Rückgängig".
    std::string status();
    /// Presses what the status line offers.
    void pressStatus();
    bool usable(std::string_view control);
    ui::Grid& grid(std::string_view control);
    /// The bars of a chart as "name:values in words", the marked one in brackets, an empty one with "!".
    std::string bars(std::string_view control);
    /// The items of a list, one a line.
    std::string items(std::string_view control);

    template <typename C>
    C& control(std::string_view name) {
        return dynamic_cast<C&>(find(name));
    }

private:
    ui::Control& find(std::string_view name);

    ui::Desktop& desktop_;
};

/// A display for tests. Each window that opens is worked by the next script; each message box gets
/// the next answer. A window without a script, a window that a script leaves open, and a message
/// without an answer fail the test.
class ScriptedDisplay final : public ui::Display, public ui::ErrorHandling {
public:
    using Script = std::function<void(User&)>;

    struct Message {
        std::string text;
        int flags = 0;
        std::string title;
    };

    struct PresentedFile {
        std::string name;
        std::string content;
    };

    ~ScriptedDisplay() override;

    /// The next window is the form of that name, and this is what the user does in it.
    void onWindow(std::string form, Script script);
    /// The next message box holds this text and is answered so, which has to be one of its buttons. With
    /// no text, any message box is meant.
    void onMessage(std::string containing, ui::Answer answer = ui::Answer::ok,
                   std::string title = "Tellurix");
    /// The next file dialog, of this title, is answered with a path; nothing cancels it.
    void onOpenFile(std::string title, std::optional<std::string> path);
    /// Somebody else works the display for a while: what is expected waits, and what is shown to him
    /// is not remembered.
    void aside(const std::function<void()>& work);
    /// The topmost window, or null.
    ui::Form* top() const { return desktop_.top(); }

    /// Errors are shown by the host's error handling from now on, and no longer remembered.
    void reportTo(ui::ErrorHandling& handling) { handling_ = &handling; }

    /// All message boxes shown so far.
    const std::vector<Message>& messages() const { return memory_.messages; }
    /// Messages of the errors handed to the host's error handling so far.
    const std::vector<std::string>& errors() const { return memory_.errors; }

    /// The files handed to the user so far.
    const std::vector<PresentedFile>& files() const { return memory_.files; }

    void showModal(ui::Form& form) override;
    ui::Answer messageBox(const std::string& text, int flags, const std::string& title) override;
    std::optional<std::string> openFile(const std::string& title, const std::string& filter) override;
    void presentFile(const std::string& name, const std::string& content) override;
    void setBusy(bool busy) override;
    void refresh() override {}
    void report(const std::exception& error) override;

private:
    struct Expected {
        std::string form;
        Script script;
    };
    struct Reply {
        std::string containing;
        ui::Answer answer;
        std::string title;
    };
    struct FileChoice {
        std::string title;
        std::optional<std::string> path;
    };
    /// What is expected, and what was shown.
    struct Memory {
        std::deque<Expected> windows;
        std::deque<Reply> replies;
        std::deque<FileChoice> fileChoices;
        std::vector<Message> messages;
        std::vector<PresentedFile> files;
        std::vector<std::string> errors;
    };
    void expectNothingMore() const;

    ui::Desktop desktop_{*this, *this};
    Memory memory_;
    ui::ErrorHandling* handling_ = nullptr;
    int busy_ = 0;
};

} // namespace tellurix::tests
