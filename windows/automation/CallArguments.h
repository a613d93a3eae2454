#pragma once

#include "automation/Variant.h"
#include "automation/com.h"

#include <cstddef>

namespace tellurix::windows {

/// The arguments of one call that came in through IDispatch, in the order in which they were written.
class CallArguments {
public:
    /// @throws AutomationError when an argument is given by name, which nothing of ours offers
    explicit CallArguments(const DISPPARAMS& parameters);

    std::size_t count() const { return parameters_.cArgs; }
    /// Whether the argument was given; a caller can also leave one out in the middle.
    bool has(std::size_t index) const;
    /// The argument as it came, by reference perhaps.
    /// @throws AutomationError when there are fewer arguments
    VARIANT& raw(std::size_t index) const;
    /// The argument's value.
    Variant operator[](std::size_t index) const { return Variant::copyOf(raw(index)); }

    /// Writes to an argument that the caller gave by reference, in the type of its variable; an
    /// argument by value takes nothing back.
    void write(std::size_t index, const Variant& value) const;

private:
    const DISPPARAMS& parameters_;
};

} // namespace tellurix::windows
