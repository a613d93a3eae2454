#pragma once

#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/TextBox.h"

#include <set>
#include <string>

namespace tellurix::parts {

/// Whether the user has entered something into some boxes since they were filled: by what he did, because
/// a box may show the same after it. Such a box is marked as changed by him until that is forgotten. It
/// outlives none of the boxes that it watches.
class EnteredChanges {
public:
    void watch(ui::TextBox& box);
    void watch(ui::CheckBox& box);
    void watch(ui::ComboBox& list);
    /// Watches all of them that stand in a frame, once the layout has been said; null for the whole form.
    void watchAll(ui::Form& form, const ui::Control* frame = nullptr);

    bool any() const { return !entered_.empty(); }
    /// The user has entered something into a box by other ways than the box's own.
    void note(ui::Control& box);
    /// The boxes have been filled anew, or what was entered has been saved or thrown away.
    void forget();

private:
    std::set<ui::Control*> entered_;
    std::string beforePick_;
};

} // namespace tellurix::parts
