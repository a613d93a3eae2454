#pragma once

#include "module/ui/Form.h"
#include "module/ui/key_hints.h"
#include "module/ui/message_box.h"

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <vector>

namespace tellurix::browser {

/// How screens are told to the page. The page knows no screen: it draws what these say.

/// A window with everything in it: title, layout and all controls. Counts as drawn.
nlohmann::json drawWindow(int id, ui::Form& form);

/// The controls of a form that changed since the last drawing, as an array; those count as drawn
/// then. Rows and items are left out where only the current one changed, and of a table whose cells
/// were written only the rows with those are told.
nlohmann::json drawChanges(ui::Form& form);

/// The last line of a window. Counts as drawn.
nlohmann::json drawStatus(ui::StatusLine& status);

/// The keys that the last line of a window names, each with its effect.
nlohmann::json drawHints(const std::vector<ui::KeyHint>& hints);

/// A message box with its buttons in the user's language.
/// @param language "de" or "en"
nlohmann::json drawMessageBox(int id, const std::string& text, int flags, const std::string& title,
                              const std::string& language);

/// The answers that a message box offers, in the order of its buttons.
std::vector<ui::Answer> answersOf(int flags);

/// As a line for the page; bytes that are no UTF-8 (they come from databases) are replaced.
std::string toText(const nlohmann::json& message);

} // namespace tellurix::browser
