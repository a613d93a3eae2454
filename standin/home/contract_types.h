#pragma once

#include "module/ui/controls/ComboBox.h"
#include "standin/services/texts/Localizer.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// The host's contract-type codes, in the order in which they are offered.
inline constexpr std::array<std::string_view, 9> contractTypes{"R",  "A1", "A2", "A3", "A4",
                                                               "A5", "A6", "A7", "A8"};

/// "A3 – Fracht" in the session's language; an unknown code stands by itself.
std::string contractTypeText(std::string_view code, const Localizer& localizer, const host::TlxVar& session);

/// Adds the contract types to a list, each with its index in `contractTypes` as item data.
void addContractTypes(ui::ComboBox& combo, const Localizer& localizer, const host::TlxVar& session);

/// A contract kind (`ID_FAKTART`), under which the host offers contracts in the reports.
struct ContractKind {
    std::int16_t kind;
    std::string name;
};

/// The kinds that the settings FAKTART1 to FAKTART9 name; where there is none, kind 1 by its number.
std::vector<ContractKind> contractKinds(host::NamedSettings& settings, const host::TlxVar& session);

} // namespace tellurix::standin
