#pragma once

#include "module/ui/controls/Control.h"

namespace tellurix::ui {

/// How far a long operation has come: `value` of `maximum` steps.
class ProgressBar final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::progressBar;

    ProgressBar(Form& form, std::string name) : Control(form, std::move(name)) {}

    ControlKind kind() const override { return ownKind; }
    bool takesFocus() const override { return false; }

    int value() const { return value_; }
    int maximum() const { return maximum_; }
    void setProgress(int value, int maximum) {
        change(value_, value);
        change(maximum_, maximum);
    }

private:
    int value_ = 0;
    int maximum_ = 100;
};

} // namespace tellurix::ui
