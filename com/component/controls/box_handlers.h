#pragma once

#include "com/automation/Dispatch.h"
#include "module/ui/controls/TextBox.h"

#include <memory>

namespace tellurix::windows {

/// Objects of the host's library that are called while the user types in a box.
struct BoxHandlers {
    Dispatch keyPress; ///< KeyPress(box, character code), answers the character to type instead
    Dispatch change;   ///< Change(box)
};

/// The handlers of a box, put in beside the ones that it has. The box keeps them.
BoxHandlers& handlersOf(ui::TextBox& box);

} // namespace tellurix::windows
