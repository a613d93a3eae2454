#pragma once

#include "module/ui/input/key_use.h"

#include <string>

namespace tellurix::browser {

/// What the page knows of the rules about who gets a key. It asks itself for each key, before the
/// browser has dealt with it, so the answers of `ui::keyUse` are printed for it.

/// Under which number the page finds the answers for a control.
int keyUsesOf(const ui::KeyTraits& traits);
const char* nameOfUse(ui::KeyUse use);
/// The page's module with all answers: by that number, which keys act `once` when they are held down,
/// and of each key ("9", "ctrl+9") its use, the native ones left out.
std::string keyUsesModule();

} // namespace tellurix::browser
