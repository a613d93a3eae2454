#pragma once

#include "module/ui/controls/Control.h"

#include <compare>

namespace tellurix::ui {

/// Who gets a key or a character that was typed while a control has the focus.
enum class KeyUse {
    native,    ///< the display's own control
    rules,     ///< the rules of input
    overheard, ///< the display's own control, and the rules are told
    nobody
};

/// What of a control decides about its keys.
struct KeyTraits {
    ControlKind kind = ControlKind::label; ///< a label for no control at all
    bool listens = false;                  ///< the screen looks at its keys
    bool severalLines = false;
    bool locked = false;
    bool filtered = false; ///< the screen looks at what is typed

    auto operator<=>(const KeyTraits&) const = default;
};

/// @param control the one that has the focus, null for none
KeyTraits keyTraitsOf(const Control* control);

/// Said here once for all displays: one that cannot ask for each key takes the answers along.
KeyUse keyUse(const KeyTraits& traits, const KeyDown& key);
/// Whether a key that is held down acts once, because a second time would be an accident.
bool actsOnce(const KeyTraits& traits, Key key);
/// Of characters; keys that make none (Tab, Enter, Backspace) are none.
KeyUse characterUse(const Control& control);

} // namespace tellurix::ui
