#pragma once

#include "com/automation/Variant.h"
#include "module/host/variant.h"

namespace tellurix::windows {

/// Values of the host's variant type, between COM and the module.

/// @throws AutomationError for a kind of value that the module does not meet, such as an object
host::Variant hostVariant(const VARIANT& value);

Variant comVariant(const host::Variant& value);

} // namespace tellurix::windows
