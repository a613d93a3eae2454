#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// A pair of small buttons, up and down.
class UpDown final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::upDown;

    UpDown(Form& form, std::string name) : Control(form, std::move(name)) {}

    ControlKind kind() const override { return ownKind; }

    Handlers<void()> onUp;
    Handlers<void()> onDown;
};

} // namespace tellurix::ui
