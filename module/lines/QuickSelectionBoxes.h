#pragma once

#include "module/host/services.h"
#include "module/lines/selection_value.h"
#include "module/ui/Layout.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"

#include <array>

namespace tellurix::lines {

/// The frame "Schnellselektion": five boxes that restrict a line by species, sort, quality, strength
/// and length. The coded boxes complete what is typed and let the user choose several codes.
class QuickSelectionBoxes {
public:
    /// @param session the screen's own copy of the session record
    QuickSelectionBoxes(ui::Form& form, host::HostServices& services, const host::TlxVar& session);

    ui::Layout layout();
    ui::Frame& frame() { return frmFilter; }
    const ui::Frame& frame() const { return frmFilter; }

    void show(const QuickSelection& selection);
    /// What stands in the boxes, as it is.
    QuickSelection shown() const;
    /// A selection as the user reads it: "Ha FI,KI; Hs B". Blanks do not count.
    std::string textOf(const QuickSelection& selection) const;
    /// What the boxes say. Lengths that are no numbers are dropped, from the box as well.
    /// @throws ui::RefusedInput when there is a quote in a code: stored, it would end the code there
    QuickSelection read();

private:
    void connect(Attribute attribute, const char* query, const char* settingKey, const char* column);

    host::HostServices& services_;
    const host::TlxVar& session_;
    ui::Frame frmFilter;
    std::array<ui::Label, attributeCount> labels_;
    std::array<ui::TextBox, attributeCount> boxes_;
};

} // namespace tellurix::lines
