#pragma once

#include "module/lines/QuickSelectionBoxes.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::lines {

/// The selection of the current line on its screen: the boxes of the quick selection, the tick that says
/// whether there is one, and the way to the host's dialog.
class LineSelection {
public:
    /// @param session the screen's own copy of the session record
    LineSelection(ui::Form& form, host::HostServices& services, const host::TlxVar& session);

    std::vector<ui::Layout> layouts();
    ui::Frame& quickSelection() { return boxes_.frame(); }
    const ui::Frame& quickSelection() const { return boxes_.frame(); }
    ui::Button& button() { return cmdSelect; }

    /// Shows a selection value; one that the boxes cannot say leaves them empty.
    void show(const std::string& value);
    /// A new line has none yet. The boxes keep what they show.
    void showNone();
    /// What the user reads of it. Boxes that were emptied say what was shown: they change no selection.
    std::string text() const;
    /// What the user would read of a stored value.
    std::string textOf(const std::string& value) const;
    /// What the boxes say, as it stands in a statement; empty for nothing.
    /// @throws ui::RefusedInput as `QuickSelectionBoxes::read`
    std::string literal() { return selectionLiteral(boxes_.read()); }

    /// Opens the host's dialog on the line of that key.
    /// @return the trimmed selection, nothing when the user cancelled
    std::optional<std::string> choose(const std::string& key);
    /// What the dialog answered has been written; the boxes cannot say it.
    void showChosen(const std::string& selection);

private:
    host::HostServices& services_;
    const host::TlxVar& session_;
    QuickSelectionBoxes boxes_;
    std::string shown_; ///< the stored value
    ui::Button cmdSelect;
    ui::CheckBox chkSelektion;
};

} // namespace tellurix::lines
