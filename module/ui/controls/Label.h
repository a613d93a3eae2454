#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// A caption beside or above a control. "&" marks the access key that leads to the control which
/// the layout puts it with.
class Label final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::label;

    Label(Form& form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), caption_(std::move(caption)) {}

    ControlKind kind() const override { return ownKind; }
    bool takesFocus() const override { return false; }

    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption) { change(caption_, std::move(caption)); }
    /// A value that the eye looks for: drawn bold.
    bool strong() const { return strong_; }
    void setStrong(bool strong) { change(strong_, strong); }
    /// Stands out among labels of its kind, in the system's colour for that.
    bool highlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted) { change(highlighted_, highlighted); }

private:
    std::string caption_;
    bool strong_ = false;
    bool highlighted_ = false;
};

} // namespace tellurix::ui
