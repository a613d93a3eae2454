#include "com/server/PlacedArguments.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Variant.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

/// No operation has as many; a number beyond is none of a parameter.
constexpr DISPID parametersAtMost = 64;

} // namespace

PlacedArguments::PlacedArguments(const DISPPARAMS& given) {
    // Those by name come first, each with the number of its parameter; then the others, backwards.
    const UINT inPlace = given.cArgs - given.cNamedArgs;
    std::size_t count = inPlace;
    for (UINT i = 0; i < given.cNamedArgs; ++i) {
        const DISPID place = given.rgdispidNamedArgs[i];
        if (place < static_cast<DISPID>(inPlace) || place >= parametersAtMost)
            throw AutomationError(DISP_E_PARAMNOTFOUND, "An argument by name does not belong here");
        count = std::max(count, static_cast<std::size_t>(place) + 1);
    }
    values_.assign(count, Variant::missing());
    for (UINT i = 0; i < inPlace; ++i)
        values_[count - 1 - i] = given.rgvarg[given.cArgs - 1 - i];
    for (UINT i = 0; i < given.cNamedArgs; ++i)
        values_[count - 1 - static_cast<std::size_t>(given.rgdispidNamedArgs[i])] = given.rgvarg[i];
    placed_.rgvarg = values_.data();
    placed_.cArgs = static_cast<UINT>(count);
}

} // namespace tellurix::windows
