#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace tellurix::host {

/// A value of the host's variant type, as far as the module meets it.
using Variant = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

/// The variant as a Boolean: empty is false, a number is true unless it is 0, and the texts
/// "True" and "False" (in any case) and numbers in text form count as well.
/// @throws std::invalid_argument for any other text
bool toBoolean(const Variant& value);

} // namespace tellurix::host
