// The ids of the type library are to be defined here.
#include <initguid.h>

#include "com/session/record_type.h"

#include "com/automation/AutomationError.h"

#include <Tellurix_Loc.h>

namespace tellurix::windows {

namespace {

/// Of TlxVar in Tellurix_Loc.idl; the compiled header has the ids of interfaces and classes only.
constexpr GUID recordId{0x1e9c9e6e, 0x18ea, 0x490b, {0xa9, 0x5e, 0x98, 0xf0, 0x15, 0x52, 0x6e, 0x24}};

constexpr WORD libraryMajor = 1;
constexpr WORD libraryMinor = 0;

} // namespace

ComPtr<IRecordInfo> sessionRecordType() {
    ComPtr<IRecordInfo> type;
    check(GetRecordInfoFromGuids(LIBID_Tellurix_Loc, libraryMajor, libraryMinor, LOCALE_NEUTRAL, recordId,
                                 type.put()),
          "Looking for the session record of Tellurix_Loc");
    return type;
}

bool isSessionRecord(IRecordInfo& type) {
    GUID id{};
    return SUCCEEDED(type.GetGuid(&id)) && id == recordId;
}

} // namespace tellurix::windows
