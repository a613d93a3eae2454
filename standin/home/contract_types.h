#pragma once

#include "module/ui/controls/ComboBox.h"
#include "standin/services/texts/Localizer.h"

#include <array>
#include <string>
#include <string_view>

namespace tellurix::standin {

/// The host's contract-type codes, in the order in which they are offered.
inline constexpr std::array<std::string_view, 9> contractTypes{"R",  "A1", "A2", "A3", "A4",
                                                               "A5", "A6", "A7", "A8"};

/// "A3 – Fracht" in the session's language; an unknown code stands by itself.
std::string contractTypeText(std::string_view code, const Localizer& localizer, const host::TlxVar& session);

/// Adds the contract types to a list, each with its index in `contractTypes` as item data.
void addContractTypes(ui::ComboBox& combo, const Localizer& localizer, const host::TlxVar& session);

} // namespace tellurix::standin
