#pragma once

#include "com/automation/Variant.h"

namespace tellurix::windows {

/// Variables of a caller that something is written to: a VARIANT, or what one refers to.

/// What a VARIANT by reference to VARIANTs refers to in the end; itself when it is none.
const VARIANT& followed(const VARIANT& value);
VARIANT& followed(VARIANT& value);

/// Whether `assign` knows the kind of variable.
bool isAssignable(const VARIANT& variable);

/// Gives a variable another value: in its own type where it has one, as a whole where it is a VARIANT.
/// @throws AutomationError when the value cannot become one of its type
void assign(VARIANT& variable, const Variant& value);

} // namespace tellurix::windows
