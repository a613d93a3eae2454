#pragma once

#include "module/base/database.h"

#include <string>
#include <string_view>

namespace tellurix::standin {

/// A text as a JSON string, in one line. Bytes that are no UTF-8 become replacement characters.
std::string jsonText(std::string_view text);

/// A field as JSON: NULL as null, a flag as true or false, a decimal as a number with all its
/// decimals, a date as "2025-06-05T00:00:00", with milliseconds only where there are some.
std::string jsonValue(const base::Value& value);

} // namespace tellurix::standin
