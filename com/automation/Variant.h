#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/com.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace tellurix::windows {

/// A value of automation. It can stand wherever a VARIANT is expected, and nothing more is added
/// to its size, so an array of these is an array of those.
class Variant : public VARIANT {
public:
    /// Empty.
    Variant();
    /// Of flags alone; a pointer would pass for one, too.
    template <std::same_as<bool> Flag>
    Variant(Flag value) : Variant() {
        vt = VT_BOOL;
        boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    Variant(std::int16_t value);
    Variant(std::int32_t value);
    Variant(std::int64_t value);
    Variant(double value);
    /// @param text UTF-8
    Variant(std::string_view text);
    Variant(const char* text) : Variant(std::string_view(text)) {}
    Variant(const std::string& text) : Variant(std::string_view(text)) {}
    Variant(const DECIMAL& value);
    /// An object; no object is VBScript's Nothing.
    Variant(const ComPtr<IDispatch>& object);
    Variant(const Variant& other);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant other) noexcept;
    ~Variant();

    /// A copy of somebody else's value; a value by reference is followed.
    static Variant copyOf(const VARIANT& value);
    static Variant null();
    /// Days since 30 December 1899, the time of day as their fraction.
    static Variant oleDate(DATE date);
    /// What stands for an optional argument that is left out.
    static Variant missing();
    /// An argument that the called method may write to. `target` has to outlive the call.
    static Variant reference(VARIANT& target);
    static Variant reference(VARIANT_BOOL& target);
    static Variant reference(BSTR& target);
    /// A record of a type library, in place. Both have to outlive the call.
    static Variant reference(void* record, IRecordInfo& type);

    /// For a function that answers with a value.
    VARIANT* put();
    /// Hands the value over to the caller.
    void detachTo(VARIANT& target);

    bool isEmpty() const { return vt == VT_EMPTY; }
    bool isNull() const { return vt == VT_NULL; }

    /// The value as another type, converted as automation does it, in the invariant language.
    /// @throws AutomationError when that is not possible
    std::string text() const;
    std::int32_t integer() const;
    double number() const;
    bool flag() const;
    /// Nothing when the value is Nothing. @throws AutomationError when it is no object
    ComPtr<IDispatch> object() const;
    Variant as(VARTYPE type) const;
};

static_assert(sizeof(Variant) == sizeof(VARIANT));

} // namespace tellurix::windows
