#pragma once

#include "display/browser/session/page_message.h"
#include "module/ui/Form.h"
#include "module/ui/input/events.h"

#include <optional>

namespace tellurix::browser {

/// The neutral event that a message of the page means for a form, or nothing when it names a
/// control that is not there, cannot be used at the moment, is of another kind, or when its text
/// could not have been typed there. The page knows what it drew; what changed meanwhile, or what
/// did not come from our page at all, must not reach the screens.
std::optional<ui::Event> toEvent(const PageMessage& message, const ui::Form& form);

} // namespace tellurix::browser
