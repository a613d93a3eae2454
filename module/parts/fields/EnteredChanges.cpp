#include "module/parts/fields/EnteredChanges.h"

#include "module/ui/Form.h"

#include <utility>

namespace tellurix::parts {

void EnteredChanges::watch(ui::TextBox& box) {
    box.onChange.after([this, &box] { note(box); });
    if (!box.onPick) return;
    box.onPick.before([this, &box] { beforePick_ = box.text(); });
    box.onPick.after([this, &box] {
        if (box.text() != beforePick_) note(box);
    });
}

void EnteredChanges::watch(ui::CheckBox& box) {
    box.onClick.after([this, &box] { note(box); });
}

void EnteredChanges::watch(ui::ComboBox& list) {
    list.onChange.after([this, &list] { note(list); });
}

void EnteredChanges::note(ui::Control& box) {
    entered_.insert(&box);
    box.setChangedBy(ui::ChangedBy::user);
}

void EnteredChanges::forget() {
    for (ui::Control* box : std::exchange(entered_, {}))
        if (box->changedBy() == ui::ChangedBy::user) box->setChangedBy(ui::ChangedBy::nobody);
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
