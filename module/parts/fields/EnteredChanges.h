#pragma once

#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/TextBox.h"

#include <string>

namespace tellurix::parts {

/// Whether the user has entered something into some boxes since they were filled: by what he did, because
/// a box may show the same after it. It outlives none of the boxes that it watches.
class EnteredChanges {
public:
    void watch(ui::TextBox& box);
    void watch(ui::CheckBox& box);
    void watch(ui::ComboBox& list);
    /// Watches all of them that stand in a frame, once the layout has been said; null for the whole form.
    void watchAll(ui::Form& form, const ui::Control* frame = nullptr);

    bool any() const { return any_; }
    void note() { any_ = true; }
    /// The boxes have been filled anew.
    void forget() { any_ = false; }

private:
    bool any_ = false;
    std::string beforePick_;
};

} // namespace tellurix::parts
