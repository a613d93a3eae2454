#include "com/session/Session.h"

#include "com/automation/AutomationError.h"
#include "com/automation/variables.h"

#include <string>
#include <utility>

namespace tellurix::windows {

namespace {

Dispatch connectionOf(const HostsRecord& record) {
    ComPtr<IDispatch> connection = record.connection();
    if (!connection)
        throw AutomationError(E_INVALIDARG, "The session record (TlxVar) has no database connection");
    return Dispatch(std::move(connection));
}

} // namespace

Session::Session(std::unique_ptr<HostsRecord> record) : connection_(connectionOf(*record)) {
    values_.connection = &connection_;
    record->readInto(values_);
    values_.record = host::CarriedRecord(std::move(record));
}

std::unique_ptr<HostsRecord> recordIn(VARIANT& argument, const char* name) {
    const VARIANT& value = followed(argument);
    if ((value.vt & ~VT_BYREF) == VT_RECORD && value.pvRecord != nullptr) {
        RecordType type = value.pRecInfo == nullptr ? RecordType::registered()
                                                    : RecordType(ComPtr<IRecordInfo>(value.pRecInfo));
        if (type.isSessionRecord()) return std::make_unique<HostsRecord>(value.pvRecord, std::move(type));
    }
    throw AutomationError(DISP_E_TYPEMISMATCH,
                          std::string(name) + " has to be a session record (Tellurix_Loc.TlxVar)");
}

} // namespace tellurix::windows
