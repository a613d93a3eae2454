#pragma once

#include "module/parts/OpenContract.h"

#include <string>
#include <vector>

namespace tellurix::contract {

struct HeadSummary {
    std::vector<std::string> lines; ///< "caption: value", what is empty left out
    std::string period;             ///< of the delivery, empty for none
};

/// The head data of a contract as the editor lists them. The captions are those of the host context's
/// contract type.
/// @throws base::Refused when a colleague has deleted the contract
HeadSummary headSummary(const parts::OpenContract& contract);

} // namespace tellurix::contract
