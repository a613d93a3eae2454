#pragma once

#include "com/automation/Bstr.h"
#include "com/automation/Variant.h"
#include "module/host/TlxVar.h"

#include <Tellurix_Loc.h>

namespace tellurix::windows {

/// The session as the record that the classes of the host's library take, for one call.
class SessionRecord {
public:
    /// @param session with a connection that came from a record
    /// @throws AutomationError when the host's library is not registered
    explicit SessionRecord(const host::TlxVar& session);
    SessionRecord(const SessionRecord&) = delete;
    SessionRecord& operator=(const SessionRecord&) = delete;

    /// The argument of a late-bound call. The record outlives it.
    Variant argument() { return Variant::reference(&record_, *type_); }

private:
    ComPtr<IDispatch> connection_;
    Bstr homeCurrency_;
    Bstr site_;
    Bstr user_;
    Bstr language_;
    ::TlxVar record_;
    ComPtr<IRecordInfo> type_;
};

} // namespace tellurix::windows
