#pragma once

#include "ui/Form.h"
#include "ui/events.h"
#include "web/page_message.h"

#include <optional>

namespace tellurix::workbench {

/// The neutral event that a message of the page means for a form, or nothing when it names a
/// control that is not there, cannot be used at the moment, is of another kind, or when its text
/// could not have been typed there. The page knows what it drew; what changed meanwhile, or what
/// did not come from our page at all, must not reach the screens.
std::optional<ui::Event> toEvent(const PageMessage& message, const ui::Form& form);

} // namespace tellurix::workbench
