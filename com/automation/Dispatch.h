#pragma once

#include "com/automation/ComPtr.h"
#include "com/automation/Variant.h"

#include <initializer_list>
#include <map>
#include <string>

namespace tellurix::windows {

/// An object that is used by the names of its members, whoever made it. A member's number is asked
/// for once. Every call throws AutomationError with the source and text that the object gave.
class Dispatch {
public:
    using Arguments = std::initializer_list<Variant>;

    Dispatch() = default;
    explicit Dispatch(ComPtr<IDispatch> object) : object_(std::move(object)) {}
    /// @throws AutomationError when the value is no object, or Nothing
    explicit Dispatch(const Variant& value);

    /// A new object of a registered class, such as "ADODB.Recordset".
    static Dispatch create(const std::string& progId);

    /// @param name as its type library has it; the object decides whether case matters
    Variant get(const wchar_t* name, Arguments arguments = {}) { return invoke(name, getting, arguments); }
    /// For what may be a method or a property with arguments.
    Variant call(const wchar_t* name, Arguments arguments = {}) { return invoke(name, calling, arguments); }
    void put(const wchar_t* name, const Variant& value);
    /// Assigns an object as VBScript's Set does.
    void putReference(const wchar_t* name, const Dispatch& value);

    /// Whether the object knows a member of that name.
    bool has(const wchar_t* name);

    const ComPtr<IDispatch>& object() const { return object_; }
    explicit operator bool() const { return static_cast<bool>(object_); }

private:
    static constexpr WORD getting = DISPATCH_PROPERTYGET;
    static constexpr WORD calling = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

    Variant invoke(const wchar_t* name, WORD kind, Arguments arguments);
    DISPID numberOf(const wchar_t* name);
    HRESULT ask(const wchar_t* name, DISPID& number);

    ComPtr<IDispatch> object_;
    std::map<std::wstring, DISPID, std::less<>> numbers_;
};

} // namespace tellurix::windows
