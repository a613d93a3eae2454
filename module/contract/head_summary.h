#pragma once

#include "module/parts/OpenContract.h"

#include <string>
#include <vector>

namespace tellurix::contract {

/// The head data of a contract as the editor lists them: "caption: value", what is empty left out. The
/// captions are those of the host context's contract type.
/// @throws base::Refused when a colleague has deleted the contract
std::vector<std::string> headSummary(const parts::OpenContract& contract);

} // namespace tellurix::contract
