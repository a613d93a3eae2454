#pragma once

#include "com/automation/AutomationError.h"
#include "com/automation/Variant.h"
#include "com/automation/com.h"

#include <cstddef>
#include <functional>
#include <utility>

namespace tellurix::windows {

/// An argument that is not what the operation needs.
class ArgumentError : public AutomationError {
public:
    /// @param index in the order in which the arguments were written
    ArgumentError(HRESULT code, std::size_t index, const std::string& description);

    std::size_t index() const { return index_; }

private:
    std::size_t index_;
};

/// The value of an argument. What it cannot be converted to is told with its place in the call.
class Argument : public Variant {
public:
    Argument(Variant value, std::size_t index) : Variant(std::move(value)), index_(index) {}

    /// @param conversion takes the value
    /// @throws ArgumentError when it fails, or the argument was left out
    template <typename Conversion>
    auto converted(const Conversion& conversion) const {
        requireGiven();
        try {
            return std::invoke(conversion, static_cast<const Variant&>(*this));
        } catch (const AutomationError& error) {
            throw ArgumentError(error.code(), index_, error.what());
        }
    }

    std::string text() const { return converted(&Variant::text); }
    std::int32_t integer() const { return converted(&Variant::integer); }
    double number() const { return converted(&Variant::number); }
    bool flag() const { return converted(&Variant::flag); }
    ComPtr<IDispatch> object() const { return converted(&Variant::object); }
    Variant as(VARTYPE type) const {
        return converted([type](const Variant& value) { return value.as(type); });
    }

private:
    void requireGiven() const;

    std::size_t index_;
};

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
    Argument operator[](std::size_t index) const;

    /// @throws ArgumentError when the argument refers to a variable of a kind that `write` does not know
    void expectWritable(std::size_t index) const;
    /// Writes to an argument that the caller gave by reference, in the type of its variable; an
    /// argument by value takes nothing back.
    void write(std::size_t index, const Variant& value) const;

private:
    const DISPPARAMS& parameters_;
};

} // namespace tellurix::windows
