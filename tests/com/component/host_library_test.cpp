#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "com/session/error_kind.h"
#include "module/base/Refused.h"
#include "module/base/database.h"
#include "standin/windows_host/libraries.h"
#include "tests/com/component/ComponentClient.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using windows::Bstr;
using windows::ComPtr;
using windows::errorKind;
using windows::errorOfKind;

/// The names of an interface's members with their numbers.
std::map<std::wstring, DISPID> membersOf(ITypeInfo& type) {
    std::map<std::wstring, DISPID> members;
    TYPEATTR* attributes = nullptr;
    windows::check(type.GetTypeAttr(&attributes), "GetTypeAttr");
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        windows::check(type.GetFuncDesc(i, &function), "GetFuncDesc");
        Bstr name;
        type.GetDocumentation(function->memid, name.put(), nullptr, nullptr, nullptr);
        // Those of IDispatch itself have numbers of their own.
        if (function->memid < 0x60000000) members[name.get()] = function->memid;
        type.ReleaseFuncDesc(function);
    }
    type.ReleaseTypeAttr(attributes);
    return members;
}

TEST(HostLibrary, OffersEveryClassOfItsTypeLibraryAsItStandsThere) {
    windows::registerLibraries();
    const ComponentClient apartment;
    ComPtr<ITypeLib> library;
    windows::check(LoadTypeLib(L"Tellurix_Loc.dll", library.put()), "LoadTypeLib");
    int classes = 0;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind{};
        library->GetTypeInfoType(i, &kind);
        if (kind != TKIND_COCLASS) continue;
        ComPtr<ITypeInfo> type;
        ComPtr<ITypeInfo> ownInterface;
        HREFTYPE reference = 0;
        library->GetTypeInfo(i, type.put());
        type->GetRefTypeOfImplType(0, &reference);
        type->GetRefTypeInfo(reference, ownInterface.put());
        Bstr name;
        type->GetDocumentation(MEMBERID_NIL, name.put(), nullptr, nullptr, nullptr);
        SCOPED_TRACE(windows::textOf(name.get()));

        const auto object = windows::Dispatch::create("Tellurix_Loc." + windows::textOf(name.get())).object();
        const auto members = membersOf(*ownInterface);
        EXPECT_FALSE(members.empty());
        TYPEATTR* attributes = nullptr;
        ComPtr<IUnknown> own;
        windows::check(ownInterface->GetTypeAttr(&attributes), "GetTypeAttr");
        EXPECT_EQ(object->QueryInterface(attributes->guid, own.putVoid()), S_OK) << "by its own interface";
        ownInterface->ReleaseTypeAttr(attributes);
        for (const auto& [member, number] : members) {
            auto asked = const_cast<wchar_t*>(member.c_str());
            DISPID answered = DISPID_UNKNOWN;
            object->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_NEUTRAL, &answered);
            EXPECT_EQ(answered, number) << windows::narrow(member);
        }
        ++classes;
    }
    EXPECT_EQ(classes, 23);
}

TEST(HostLibrary, IsToldEveryKindOfErrorByAWordThatItTurnsBack) {
    using enum base::DatabaseErrorCategory;
    for (const base::DatabaseErrorCategory category :
         {syntax, unknownName, conversion, constraint, locked, connection, storageFull, readOnly, damaged,
          missing, other}) {
        const std::string kind = errorKind(base::DatabaseError{category, "text", {}});
        SCOPED_TRACE(kind);
        try {
            std::rethrow_exception(errorOfKind(kind, "text"));
        } catch (const base::DatabaseError& error) {
            EXPECT_EQ(error.category(), category);
        } catch (const std::exception&) {
            ADD_FAILURE() << "no error of a database";
        }
    }
    EXPECT_EQ(errorKind(base::Refused{"text"}), "refused");
    EXPECT_THROW(std::rethrow_exception(errorOfKind("refused", "text")), base::Refused);
    EXPECT_EQ(errorKind(std::runtime_error{"text"}), "");
}

} // namespace
} // namespace tellurix::tests
