#include "com/session/Session.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "com/automation/variables.h"
#include "com/session/record_type.h"

#include <string>

namespace tellurix::windows {

namespace {

Dispatch connectionOf(const ::TlxVar& record) {
    if (record.Connection == nullptr)
        throw AutomationError(E_INVALIDARG, "The session record (TlxVar) has no database connection");
    return Dispatch(ComPtr<IDispatch>(record.Connection));
}

} // namespace

Session::Session(const ::TlxVar& record)
    : connection_(connectionOf(record)),
      values_{.connection = &connection_,
              .accessLevel = record.AccessLevel,
              .homeCurrency = textOf(record.HomeCurrency),
              .site = textOf(record.Site),
              .user = textOf(record.User),
              .language = textOf(record.Language)} {}

::TlxVar& recordIn(VARIANT& argument, const char* name) {
    const VARIANT& value = followed(argument);
    const bool isRecord = (value.vt & ~VT_BYREF) == VT_RECORD && value.pvRecord != nullptr;
    if (!isRecord || (value.pRecInfo != nullptr && !isSessionRecord(*value.pRecInfo)))
        throw AutomationError(DISP_E_TYPEMISMATCH,
                              std::string(name) + " has to be a session record (Tellurix_Loc.TlxVar)");
    return *static_cast<::TlxVar*>(value.pvRecord);
}

} // namespace tellurix::windows
