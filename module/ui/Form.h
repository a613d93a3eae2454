#pragma once

#include "module/ui/Layout.h"
#include "module/ui/StatusLine.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::ui {

class Button;

/// A screen: its controls are its members, its constructor connects their handlers and says the
/// layout, and its methods are the screen's logic. It knows nothing of how it is drawn.
///
/// A form lives longer than its window. A display loads it, shows it and unloads it; the object
/// and what its members hold stay for the next time.
class Form {
public:
    explicit Form(std::string name, std::string title = {});
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& title() const { return title_; }
    void setTitle(std::string title);
    /// Whom and which time it is about: paper says so below the title, also of the windows above that have
    /// nothing of their own to say. Asked at each drawing; empty for nothing.
    virtual std::string subject() const { return {}; }

    /// All controls in the order of their ids.
    std::span<Control* const> controls() const { return controls_; }
    /// The control of that name, or null.
    Control* find(std::string_view name) const;
    const Layout& layout() const { return layout_; }
    /// The controls that can take the focus by Tab at the moment, in their order.
    std::vector<Control*> tabOrder() const;
    /// Where a visit begins: the first of them, one in the heading of a section only where there is no other.
    Control* firstControl() const;
    /// The control that the layout puts with a label, or null.
    Control* labelled(const Label& label) const;
    /// The label that the layout puts with a control, in a table that of its column; or null.
    Label* labelOf(const Control& control) const;

    /// The control that gets what the user types, or null.
    Control* focused() const { return focused_; }
    /// Gives a control the focus, selects the whole text of a box so that typing replaces it, and
    /// calls the control's `onFocus`.
    /// @return false when it is hidden or disabled: then nothing changes.
    bool setFocus(Control& control);
    /// Pressed by Esc; null lets Esc close the window.
    Button* cancelButton() const { return cancelButton_; }
    /// Esc, before it presses that button or closes the window: a screen closes the innermost thing that is
    /// open in it, and asks where something typed would be lost by accident.
    /// @return false when that was all that Esc is to do
    virtual bool escape() { return true; }
    /// Whether the user can close it at all.
    virtual bool closes() const { return true; }

    /// In which the words of the rules of input are: "en"; any other is German.
    const std::string& language() const { return language_; }
    void setLanguage(std::string language) { language_ = std::move(language); }

    /// The last line of the window; it is empty again when the window has gone.
    StatusLine& status() { return status_; }
    const StatusLine& status() const { return status_; }

    /// The way on at the moment, which Ctrl+S presses: the usable one of those that the layout leads on by,
    /// or null.
    Button* primaryButton() const;
    /// Stands beside the field that asked for it, over its screen, instead of filling the window: a list, a
    /// calendar.
    bool isCard() const { return isCard_; }

    /// Shown in a window at the moment.
    bool loaded() const { return loaded_; }
    /// For displays: the window is about to be shown.
    void load();
    /// Closes the window if `queryUnload` allows it: a user who closes it, a button and the program
    /// all go this way.
    /// @return false when it stays open
    bool unload();

    /// Has something done as soon as the user leaves time for it, in place of what was to be done before.
    /// @param step a piece of it, short enough for a key that comes meanwhile to wait; called again, as long
    ///        as nothing else happens, while it answers that there is more to do
    void later(std::function<bool()> step) { later_ = std::move(step); }
    /// For displays, through Desktop: does a piece of it.
    /// @return false when there is nothing to do
    bool doLater();

    bool titleDirty() const { return titleDirty_; }
    /// For displays: the title has been drawn.
    void titleDrawn() { titleDirty_ = false; }

protected:
    void setLayout(Layout layout);
    void setCancelButton(Button& button) { cancelButton_ = &button; }
    void setCard() { isCard_ = true; }
    /// Asked before the window closes; false keeps it open.
    virtual bool queryUnload() { return true; }

private:
    friend class Control;
    std::size_t add(Control& control);
    void adopt(const Layout& layout, Control* container, int page);

    std::string name_;
    std::string title_;
    std::vector<Control*> controls_;
    Layout layout_{Layout::Kind::column, nullptr, {}};
    StatusLine status_;
    std::function<bool()> later_;
    Control* focused_ = nullptr;
    Button* cancelButton_ = nullptr;
    std::string language_;
    bool isCard_ = false;
    bool loaded_ = false;
    bool unloading_ = false;
    bool titleDirty_ = true;
};

} // namespace tellurix::ui
