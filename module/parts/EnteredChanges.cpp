#include "module/parts/EnteredChanges.h"

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

} // namespace tellurix::parts
