#pragma once

#include "module/parts/OpenContract.h"

#include <cstdint>

namespace tellurix::logistics {

/// Begins a mail to all forest helpers of a contract, which the user completes and sends. A helper
/// without an address is named by his member number. What fails of the mail is told.
/// @param logistics `WVO_VERTRAG.ID` of the contract
/// @return whether it was handed over to be sent
bool mailHelpers(const parts::OpenContract& contract, std::int64_t logistics);

} // namespace tellurix::logistics
