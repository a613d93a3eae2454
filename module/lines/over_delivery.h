#pragma once

#include "module/base/Decimal.h"
#include "module/base/database.h"

#include <cstdint>

namespace tellurix::lines {

/// How many per cent above an agreed quantity may be delivered, by the settings of the contract's logistics;
/// 0 where there are none.
base::Decimal overDeliveryOf(base::Connection& connection, std::int32_t contract);

/// What may be delivered of an agreed quantity at most.
/// @param overDelivery per cent
base::Decimal permittedQuantity(const base::Decimal& agreed, const base::Decimal& overDelivery);

} // namespace tellurix::lines
