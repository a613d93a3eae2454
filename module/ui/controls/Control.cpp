#include "module/ui/controls/Control.h"

#include "module/ui/Form.h"

namespace tellurix::ui {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)), id_(form.add(*this)) {}

bool Control::showing() const {
    if (!visible_) return false;
    if (container_ == nullptr) return true;
    if (const Tabs* tabs = as<Tabs>(container_); tabs != nullptr && tabs->selected() != page_) return false;
    return container_->showing();
}

bool Control::usable() const {
    for (const Control* control = this; control != nullptr; control = control->container_) {
        if (!control->enabled_) return false;
    }
    return showing();
}

} // namespace tellurix::ui
