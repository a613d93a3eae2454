#pragma once

#include "module/ui/controls/Control.h"

#include <vector>

namespace tellurix::ui {

/// Pages of controls of which one is shown; the layout says what stands on each.
class Tabs final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::tabs;

    Tabs(Form& form, std::string name, std::vector<std::string> captions)
        : Control(form, std::move(name)), captions_(std::move(captions)) {}

    ControlKind kind() const override { return ownKind; }

    const std::vector<std::string>& captions() const { return captions_; }
    void setCaptions(std::vector<std::string> captions) { change(captions_, std::move(captions)); }
    int selected() const { return selected_; }
    void select(int page) { change(selected_, page); }

    /// The user chose another page.
    Handlers<void()> onChange;

private:
    std::vector<std::string> captions_;
    int selected_ = 0;
};

} // namespace tellurix::ui
