#pragma once

#include "com/automation/Variant.h"
#include "module/base/database.h"

#include <cstdint>

/// Between the values of the database port and those of automation.
namespace tellurix::windows::ado {

/// What a column of one of ADO's types holds. What is no number, date or flag is read as text.
base::FieldType fieldTypeOf(std::int32_t dataType);
/// The type that ADO tells for such a column of a server's table.
std::int32_t dataTypeOf(base::FieldType type);

/// @throws AutomationError for a value that the port cannot hold; decimals beyond 18 digits are rounded
base::Value valueOf(const VARIANT& value, base::FieldType type);
/// @param type of the column that the value is read from or goes into
Variant variantOf(const base::Value& value, base::FieldType type);

DECIMAL decimalOf(const base::Decimal& number);
/// Whole milliseconds; the time of day counts forward from the day also before 1899.
base::DateTime momentOf(DATE date);
DATE oleDateOf(base::DateTime moment);

} // namespace tellurix::windows::ado
