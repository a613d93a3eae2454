#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// A push button. "&" in the caption marks the access key. A picture button shows the named
/// picture; its caption is then what screen readers say.
class Button final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::button;

    Button(Form& form, std::string name, std::string caption = {}, std::string picture = {})
        : Control(form, std::move(name)), caption_(std::move(caption)), picture_(std::move(picture)) {}

    ControlKind kind() const override { return ownKind; }

    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption) { change(caption_, std::move(caption)); }
    /// Name of the picture ("delete", "document"), empty for a button with text.
    const std::string& picture() const { return picture_; }

    /// Whether pressing it first leaves (and so checks) the box that has the focus. Off for the
    /// buttons that throw input away: nobody has to correct a date in order to cancel.
    bool causesValidation() const { return causesValidation_; }
    void setCausesValidation(bool causes) { causesValidation_ = causes; }

    Handlers<void()> onClick;

private:
    std::string caption_;
    std::string picture_;
    bool causesValidation_ = true;
};

} // namespace tellurix::ui
