#pragma once

#include "com/automation/CallArguments.h"
#include "com/automation/ComObject.h"
#include "com/automation/Variant.h"

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace tellurix::windows {

class DispatchObject;

/// What a class of late-bound objects offers by name; one table serves all objects of the class.
class DispatchTable {
public:
    using Operation = std::function<Variant(DispatchObject&, const CallArguments&)>;
    struct Member {
        std::wstring name;
        Operation get; ///< reading it, or calling it
        Operation put; ///< assigning to it; the new value is the last argument
    };

    /// @param operation `Variant(Class&, const CallArguments&)`, or the same answering nothing
    template <typename Class, typename Work>
    DispatchTable& method(const wchar_t* name, Work operation) {
        members_.push_back({name, bound<Class>(operation), {}});
        return *this;
    }
    template <typename Class, typename Get, typename Put>
    DispatchTable& property(const wchar_t* name, Get get, Put put) {
        members_.push_back({name, bound<Class>(get), bound<Class>(put)});
        return *this;
    }
    /// What an object is when it is used without a member's name.
    DispatchTable& defaultMember(const wchar_t* name);
    /// Lets scripts go through a collection, `For Each`: it has Count, and Item(index from 0).
    DispatchTable& enumerable();

    /// Names are found in any case of their letters. @return DISPID_UNKNOWN when there is none
    DISPID numberOf(const wchar_t* name) const;
    /// @return nullptr when there is none
    const Member* member(DISPID number) const;
    bool isEnumerable() const { return enumerable_; }

private:
    template <typename Class, typename Work>
    static Operation bound(Work operation) {
        return [operation](DispatchObject& object, const CallArguments& arguments) -> Variant {
            if constexpr (std::is_void_v<std::invoke_result_t<Work, Class&, const CallArguments&>>) {
                std::invoke(operation, static_cast<Class&>(object), arguments);
                return {};
            } else {
                return std::invoke(operation, static_cast<Class&>(object), arguments);
            }
        };
    }

    std::vector<Member> members_; ///< numbered from 1
    DISPID default_ = DISPID_UNKNOWN;
    bool enumerable_ = false;
};

/// An object of ours that clients use by the names of its members, scripts included. Nothing that a
/// member throws escapes: the caller gets a code with source and description.
class DispatchObject : public ComObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) final;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** type) final;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language,
                                            DISPID* numbers) final;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID id, LCID language, WORD kind,
                                     DISPPARAMS* parameters, VARIANT* answer, EXCEPINFO* error,
                                     UINT* wrongArgument) final;

protected:
    /// The table of the object's class: a `static const` in the function.
    virtual const DispatchTable& table() const = 0;
    /// Who it is that reports an error, such as "ADODB.Recordset".
    virtual const char* source() const = 0;

private:
    Variant invoke(DISPID number, WORD kind, const CallArguments& arguments);
};

} // namespace tellurix::windows
