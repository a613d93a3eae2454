#pragma once

#include "com/automation/com.h"

#include <vector>

namespace tellurix::windows {

/// The arguments of a call through IDispatch, each in its place, those that came by name too. The
/// values stay the caller's.
class PlacedArguments {
public:
    explicit PlacedArguments(const DISPPARAMS& given);
    PlacedArguments(const PlacedArguments&) = delete;
    PlacedArguments& operator=(const PlacedArguments&) = delete;

    const DISPPARAMS& parameters() const { return placed_; }

private:
    std::vector<VARIANT> values_; ///< the last argument first
    DISPPARAMS placed_{};
};

} // namespace tellurix::windows
