#pragma once

#include "module/base/Decimal.h"
#include "module/base/Locale.h"
#include "module/base/database.h"

#include <optional>
#include <string>
#include <string_view>

namespace tellurix::base {

/// How fields of a row are shown on a screen. NULL is always the empty text.

/// The day of a date field; nothing for NULL and for what is no date.
std::optional<Date> dayIn(const Value& field);
/// A date field as "dd.mm.yyyy".
std::string dateText(const Value& field);
/// Two date fields as "dd.mm.yyyy – dd.mm.yyyy"; empty where both are.
std::string periodText(const Value& from, const Value& to);
/// A number field through a number mask.
std::string numberText(const Value& field, std::string_view mask, const Locale& locale);
/// A field of any numeric type as an exact number; nothing for NULL and for what is no number.
std::optional<Decimal> numberIn(const Value& field);
/// Whether two fields say the same: numbers of whatever type by their size, NULL like an empty text.
bool sameValue(const Value& left, const Value& right);

} // namespace tellurix::base
