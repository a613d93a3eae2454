#include "database/ado/AdoConnection.h"

#include "database/ado/AdoRecordset.h"
#include "database/ado/constants.h"
#include "database/ado/errors.h"

#include <string>

namespace tellurix::windows::ado {

namespace {

/// What the next statement of a batch answered; Nothing when there is none.
Variant next(Dispatch& recordset, Variant& affected) {
    constexpr HRESULT notSupported = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 3251);
    try {
        return recordset.call(L"NextRecordset", {Variant::reference(affected)});
    } catch (const AutomationError& error) {
        // A provider that knows one answer a statement.
        if (error.code() != notSupported) throw;
        return ComPtr<IDispatch>();
    }
}

} // namespace

base::ExecuteResult AdoConnection::execute(std::string_view statement) {
    forgetErrors(connection_);
    return reported(connection_, statement, [&] {
        base::ExecuteResult result;
        Variant affected = -1;
        Variant answer = connection_.call(
            L"Execute", {Variant(statement), Variant::reference(affected), Variant(adCmdText)});
        // A write that the server counts answers with a recordset of its own, which is closed.
        for (;;) {
            if (const std::int32_t count = affected.integer(); count >= 0) result.rowsAffected = count;
            const ComPtr<IDispatch> object = answer.object();
            if (!object) return result;
            Dispatch recordset(object);
            if ((recordset.get(L"State").integer() & adStateOpen) != 0) {
                result.rows =
                    std::make_unique<AdoRecordset>(std::move(recordset), connection_, std::string(statement));
                return result;
            }
            affected = -1;
            answer = next(recordset, affected);
        }
    });
}

std::unique_ptr<base::UpdatableRecordset> AdoConnection::openUpdatable(std::string_view query) {
    forgetErrors(connection_);
    return reported(connection_, query, [&] {
        Dispatch recordset = newRecordset();
        recordset.call(L"Open", {Variant(query), Variant(connection_.object()), Variant(adOpenStatic),
                                 Variant(adLockPessimistic), Variant(adCmdText)});
        return std::make_unique<AdoRecordset>(std::move(recordset), connection_, std::string(query));
    });
}

/// A connection that is not of ADO's own making has recordsets of its own and makes them itself.
Dispatch AdoConnection::newRecordset() {
    if (connection_.has(L"NewRecordset")) return Dispatch(connection_.call(L"NewRecordset"));
    return Dispatch::create("ADODB.Recordset");
}

} // namespace tellurix::windows::ado
