#include "standin/ado_objects/ConnectionObject.h"

#include "com/automation/Dispatch.h"
#include "com/automation/wide.h"
#include "database/ado/constants.h"
#include "database/embedded/Database.h"
#include "module/base/text.h"
#include "standin/ado_objects/RecordsetObject.h"
#include "standin/ado_objects/embedded_connection.h"

#include <utility>

namespace tellurix::windows::ado {

namespace {

/// Asks an object whether it is one of this class, in this process.
constexpr GUID ownClass{0x6f1d7a52, 0x0b8e, 0x4c39, {0x9e, 0x41, 0x2a, 0x57, 0xd3, 0x88, 0x1c, 0x06}};

/// "C:\Daten\x.db", or "Data Source=C:\Daten\x.db;…".
std::filesystem::path fileNamedIn(std::string_view connectionString) {
    constexpr std::string_view key = "DATA SOURCE=";
    const std::size_t start = base::toUpper(connectionString).find(key);
    if (start != std::string::npos) {
        connectionString.remove_prefix(start + key.size());
        connectionString = connectionString.substr(0, connectionString.find(';'));
    }
    return widen(base::trim(connectionString));
}

} // namespace

ComPtr<IDispatch> createEmbeddedConnection(const base::Clock& clock, PrepareFile prepare,
                                           const IID& interfaceId) {
    return ComPtr<IDispatch>::adopt(new ConnectionObject(clock, std::move(prepare), interfaceId));
}

const DispatchTable& ConnectionObject::table() const {
    using Self = ConnectionObject;
    static const DispatchTable table =
        DispatchTable()
            .method<Self>(L"Open", &Self::open)
            .method<Self>(L"Close", &Self::close)
            .method<Self>(L"Execute", &Self::execute)
            .method<Self>(L"NewRecordset",
                          [](Self&, const CallArguments&) -> Variant {
                              return ComPtr<IDispatch>::adopt(new RecordsetObject());
                          })
            .method<Self>(L"State",
                          [](Self& self, const CallArguments&) -> Variant {
                              return self.connection_ ? adStateOpen : adStateClosed;
                          })
            .method<Self>(L"Errors",
                          [](Self& self, const CallArguments& arguments) -> Variant {
                              Dispatch errors(errorsObject(self.errors_));
                              if (arguments.count() == 0) return errors.object();
                              return errors.get(L"Item", {arguments[0]});
                          })
            .property<Self>(
                L"ConnectionString",
                [](Self& self, const CallArguments&) -> Variant { return self.connectionString_; },
                [](Self& self, const CallArguments& arguments) {
                    self.connectionString_ = arguments[0].text();
                })
            .defaultMember(L"ConnectionString");
    return table;
}

ComPtr<ConnectionObject> ConnectionObject::in(const Variant& value) {
    ComPtr<ConnectionObject> connection;
    const ComPtr<IDispatch> object = value.object();
    if (!object || FAILED(object->QueryInterface(ownClass, connection.putVoid())))
        fail(AdoError::noConnection);
    return connection;
}

HRESULT ConnectionObject::QueryInterface(REFIID id, void** answer) {
    if (answer == nullptr || id != ownClass)
        return DispatchObject::QueryInterface(id == interfaceId_ ? IID_IDispatch : id, answer);
    AddRef();
    *answer = this;
    return S_OK;
}

base::Connection& ConnectionObject::connection() {
    if (!connection_) fail(AdoError::noConnection);
    return *connection_;
}

void ConnectionObject::open(const CallArguments& arguments) {
    if (connection_) fail(AdoError::alreadyOpen);
    if (arguments.has(0)) connectionString_ = arguments[0].text();
    const std::filesystem::path file = fileNamedIn(connectionString_);
    if (prepare_) prepare_(file);
    connection_ = onDatabase([&] { return embedded::Database(file, clock_).connect(); });
}

void ConnectionObject::close(const CallArguments&) {
    if (!connection_) fail(AdoError::closed);
    connection_.reset();
}

/// CommandText, RecordsAffected, Options.
Variant ConnectionObject::execute(const CallArguments& arguments) {
    const std::string statement = arguments[0].text();
    base::ExecuteResult result = onDatabase([&] { return connection().execute(statement); });
    if (arguments.has(1)) arguments.write(1, static_cast<std::int32_t>(result.rowsAffected));
    return RecordsetObject::answering(ComPtr(this), statement, std::move(result));
}

void ConnectionObject::raise(const base::DatabaseError& error) {
    const ServerError reported = serverErrorOf(error);
    *errors_ = {reported};
    throw AutomationError(reported.number, reported.description, sourceName);
}

} // namespace tellurix::windows::ado
