#pragma once

#include "automation/Variant.h"
#include "common/database.h"

#include <cstdint>

/// Between the values of the database port and those of automation.
namespace tellurix::windows::ado {

/// What a column of one of ADO's types holds. What is no number, date or flag is read as text.
common::FieldType fieldTypeOf(std::int32_t dataType);
/// The type that ADO tells for such a column of a server's table.
std::int32_t dataTypeOf(common::FieldType type);

/// @throws AutomationError for a value that the port cannot hold; decimals beyond 18 digits are rounded
common::Value valueOf(const VARIANT& value, common::FieldType type);
/// @param type of the column that the value is read from or goes into
Variant variantOf(const common::Value& value, common::FieldType type);

DECIMAL decimalOf(const common::Decimal& number);
/// Whole milliseconds; the time of day counts forward from the day also before 1899.
common::DateTime momentOf(DATE date);
DATE oleDateOf(common::DateTime moment);

} // namespace tellurix::windows::ado
