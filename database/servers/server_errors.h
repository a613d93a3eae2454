#pragma once

#include "module/base/database.h"

namespace tellurix::servers {

/// What kind of trouble a T-SQL server reports by the number of its error; `other` for one that says nothing
/// to those who could do something about it.
base::DatabaseErrorCategory categoryOfNumber(int number);

} // namespace tellurix::servers
