#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// A border with a caption around other controls. Hiding or disabling it hides or disables them.
class Frame final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::frame;

    Frame(Form& form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), caption_(std::move(caption)) {}

    ControlKind kind() const override { return ownKind; }
    bool takesFocus() const override { return false; }

    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption) { change(caption_, std::move(caption)); }

private:
    std::string caption_;
};

} // namespace tellurix::ui
