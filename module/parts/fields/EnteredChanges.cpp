#include "module/parts/fields/EnteredChanges.h"

#include "module/ui/Form.h"

namespace tellurix::parts {

void EnteredChanges::watch(ui::TextBox& box) {
    box.onChange.after([this] { note(); });
    if (!box.onPick) return;
    box.onPick.before([this, &box] { beforePick_ = box.text(); });
    box.onPick.after([this, &box] { any_ = any_ || box.text() != beforePick_; });
}

void EnteredChanges::watch(ui::CheckBox& box) {
    box.onClick.after([this] { note(); });
}

void EnteredChanges::watch(ui::ComboBox& list) {
    list.onChange.after([this] { note(); });
}

void EnteredChanges::watchAll(ui::Form& form, const ui::Control* frame) {
    for (ui::Control* control : form.controls()) {
        if (frame != nullptr && control->container() != frame) continue;
        if (auto* box = ui::as<ui::TextBox>(control)) watch(*box);
        if (auto* box = ui::as<ui::CheckBox>(control)) watch(*box);
        if (auto* list = ui::as<ui::ComboBox>(control)) watch(*list);
    }
}

} // namespace tellurix::parts
