#pragma once

#include "ui/Control.h"

namespace tellurix::windows {

/// Who gets a key or a character that was typed while a control has the focus.
enum class KeyUse {
    session,   ///< the rules of input
    native,    ///< the native control
    overheard, ///< the native control, and the rules are told
    nobody
};

/// @param control the one that has the focus, null for none
KeyUse keyUseOf(const ui::Control* control, const ui::KeyDown& key);
/// @param unit of a character in UTF-16
KeyUse characterUseOf(const ui::Control& control, wchar_t unit);

} // namespace tellurix::windows
