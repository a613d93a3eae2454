#pragma once

#include "common/Locale.h"
#include "common/database.h"

#include <string>
#include <string_view>

namespace tellurix::common {

/// How fields of a row are shown on a screen. NULL is always the empty text.

/// A date field as "dd.mm.yyyy".
std::string dateText(const Value& field);
/// A number field through a number mask.
std::string numberText(const Value& field, std::string_view mask, const Locale& locale);

} // namespace tellurix::common
