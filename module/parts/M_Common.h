#pragma once

#include "module/base/Locale.h"
#include "module/host/HostContext.h"
#include "module/host/TlxVar.h"
#include "module/ui/Display.h"
#include "module/ui/controls/ComboBox.h"

#include <cstdint>
#include <string>

namespace tellurix::parts {

/// The routines of the module's interface that belong to no one screen; their names are given, and
/// some have no caller before the screens that are still to come. None keeps state of its own.

/// Shows a message box; an empty title becomes "Tellurix".
/// @param flags buttons, icon and default button (see `ui::box`)
/// @param helpFile, helpContext taken for the host's sake; the module ships no help file
ui::Answer ShowMessage(ui::Display& display, const std::string& prompt, int flags = ui::box::ok,
                       const std::string& title = {}, const std::string& helpFile = {}, int helpContext = 0);

/// Selects the whole text of the form's focused box, so that typing replaces it. Anything else
/// that has the focus is left alone.
void SelectActiveText(ui::Form& form);

/// Checks a typed key against the type of the database column that the focused box edits: the
/// text with the key behind it must convert to an integer, a number, a Boolean or a byte. A lone
/// minus and Backspace always pass; columns of other types take everything.
/// @return the key code, or 0 when the key is rejected
/// @throws base::DatabaseError when the column cannot be read
std::int16_t CheckKeyForColumn(const host::TlxVar& session, const ui::Form& form, std::int16_t keyCode,
                               const std::string& table, const std::string& column,
                               const base::Locale& locale);

/// Gives an enabled control the focus. A control that cannot take it is ignored.
void SafeSetFocus(ui::Control& control);

/// Selects the entry that equals the text, whatever the case of the letters, or else the first one.
void SelectComboItem(ui::ComboBox& combo, const std::string& text);

/// The type-specific column of the surcharge configuration.
/// @param kind "ABSCHLAG" or "RECHZUSATZ", in any case of the letters
/// @param type contract-type code, compared exactly: "R", "A1" … "A8"
/// @param mainWindow asked whether the host works on articles ("_A" is appended then); may be null
/// @return the column name, empty for any other kind or type
std::string GetTypeColumn(const std::string& kind, const std::string& type, host::HostMainWindow* mainWindow);

} // namespace tellurix::parts
