#pragma once

#include "module/base/own_text.h"
#include "module/ui/Handlers.h"
#include "module/ui/input/keys.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tellurix::ui {

class Form;

enum class ControlKind {
    label,
    textBox,
    button,
    checkBox,
    comboBox,
    listBox,
    grid,
    frame,
    tabs,
    upDown,
    chart,
    gauges,
    progressBar
};

/// Who has changed what a control or a cell holds, since it was read and until it is written or read again.
enum class ChangedBy { nobody, user, colleague };

/// What every control of a screen has: a name, a place in its form, whether it can be seen and
/// used, and the handlers that any control may have.
///
/// A control is a named member of its form and holds values only. It draws nothing: a change marks
/// it dirty, and a display draws what is dirty when the running handler is done.
class Control {
public:
    Control(Form& form, std::string name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual ControlKind kind() const = 0;
    /// Whether the user can give it the focus (when it is visible and enabled).
    virtual bool takesFocus() const { return true; }

    Form& form() const { return form_; }
    /// The design's own name; a member of an array has its index in it: "txtNumber(3)".
    const std::string& name() const { return name_; }
    /// The control's number within its form, in the order of the members.
    std::size_t id() const { return id_; }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled) { change(enabled_, enabled); }
    bool visible() const { return visible_; }
    void setVisible(bool visible) { change(visible_, visible); }
    const std::string& toolTip() const { return toolTip_; }
    void setToolTip(std::string text) { change(toolTip_, std::move(text)); }
    /// Not empty: it is shown in a warning colour, and this is what screen readers say about it.
    const std::string& warning() const { return warning_; }
    void setWarning(std::string text) { change(warning_, std::move(text)); }
    /// Not empty: what stands in it cannot be taken as it is. It has a red frame then, and this is shown
    /// beside it, until it has been put right.
    const std::string& error() const { return error_; }
    void setError(std::string text) {
        change(error_, std::move(text));
        errorIsOld_ = false;
    }
    /// The user has changed what it holds: the error is not about that any more.
    void noteChange() { errorIsOld_ = true; }
    /// It has been left and nothing was found wrong; only then does an old error go.
    virtual void left() {
        if (errorIsOld_) setError({});
    }
    /// Drawn beside what it holds, so that it is seen what is not saved yet and what came from somebody else.
    ChangedBy changedBy() const { return changedBy_; }
    void setChangedBy(ChangedBy who) { change(changedBy_, who); }
    /// Drawn faintly, as something that is not in use yet; it can be used all the same.
    bool quiet() const { return quiet_; }
    void setQuiet(bool quiet) { change(quiet_, quiet); }

    /// The frame or tabs around this control, as the layout says it; null at the top.
    Control* container() const { return container_; }
    /// Enabled and visible together with every frame and tab page around it: usable by the user.
    bool usable() const;
    /// Visible together with every frame and tab page around it.
    bool showing() const;

    /// Called when the control has got the focus.
    Handlers<void()> onFocus;
    /// Called when the user goes on to another control. False takes the focus back.
    Handlers<bool()> onLeave;
    /// Called for every key that goes down while the control has the focus, before the shared
    /// rules of input. A handler that used the key up sets `key` to Key::none.
    Handlers<void(KeyDown&)> onKeyDown;

    /// What `onKeyDown` makes of keys, for the list of keys (F1): each text has a place for what the control
    /// is called.
    const std::vector<base::OwnText>& ownKeys() const { return ownKeys_; }
    void setOwnKeys(std::vector<base::OwnText> keys) { ownKeys_ = std::move(keys); }

    bool dirty() const { return dirty_; }
    /// It has to be drawn again, because a display may show something else.
    void markDirty() { dirty_ = true; }
    /// For displays: the control has been drawn as it is now.
    virtual void drawn() { dirty_ = false; }

protected:
    template <typename T>
    bool change(T& member, T value) {
        if (member == value) return false;
        member = std::move(value);
        dirty_ = true;
        return true;
    }

private:
    friend class Form;

    Form& form_;
    std::string name_;
    std::size_t id_;
    std::string toolTip_;
    std::string warning_;
    std::string error_;
    std::vector<base::OwnText> ownKeys_;
    /// The frame or tab page around this control, as the layout says it; null at the top.
    Control* container_ = nullptr;
    int page_ = -1; ///< within tabs: the page it stands on
    ChangedBy changedBy_ = ChangedBy::nobody;
    bool enabled_ = true;
    bool visible_ = true;
    bool quiet_ = false;
    bool errorIsOld_ = false;
    bool dirty_ = true;
};

/// A control as what it is, or null where it is of another kind.
template <typename C>
C* as(Control* control) {
    return control != nullptr && control->kind() == C::ownKind ? static_cast<C*>(control) : nullptr;
}
template <typename C>
const C* as(const Control* control) {
    return control != nullptr && control->kind() == C::ownKind ? static_cast<const C*>(control) : nullptr;
}

/// An array of `N` controls of one kind, named "base(0)" to "base(N-1)".
template <typename C, std::size_t N, typename... Arguments>
std::array<C, N> controlArray(Form& form, const std::string& base, const Arguments&... arguments) {
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
        return std::array<C, N>{C{form, base + "(" + std::to_string(I) + ")", arguments...}...};
    }
    (std::make_index_sequence<N>{});
}

} // namespace tellurix::ui
