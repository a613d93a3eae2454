#pragma once

#include "module/base/database.h"

namespace tellurix::servers {

bool isIntegral(base::FieldType type);
/// The number that the single stands for: 0.1 is 0.1 and not 0.100000001.
double doubleFrom(float number);

} // namespace tellurix::servers
