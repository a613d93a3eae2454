#pragma once

#include <string>
#include <string_view>

namespace tellurix::host {

/// The number of a contract-type code, compared exactly: 0 for "R", 1 to 8 for "A1" to "A8", -1 for
/// any other code.
int contractTypeNumber(std::string_view code);

/// The contract type as the deduction models store it: "V" for "R", "V1" … "V8" for "A1" … "A8", in
/// any case of the letters; empty for any other code.
std::string contractTypeOf(std::string_view code);

} // namespace tellurix::host
