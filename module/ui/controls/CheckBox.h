#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// A box that is ticked or not, with its caption. "&" marks the access key.
class CheckBox final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::checkBox;

    CheckBox(Form& form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), caption_(std::move(caption)) {}

    ControlKind kind() const override { return ownKind; }

    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption) { change(caption_, std::move(caption)); }
    bool checked() const { return checked_; }
    void setChecked(bool checked) { change(checked_, checked); }

    /// The user ticked or cleared it.
    Handlers<void()> onClick;

private:
    std::string caption_;
    bool checked_ = false;
};

} // namespace tellurix::ui
