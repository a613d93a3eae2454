#pragma once

#include "com/automation/Dispatch.h"
#include "module/base/database.h"

namespace tellurix::windows::ado {

/// The database port over an open ADO connection that somebody else made and will close. Everything
/// goes by the names of ADO's members, so any object will do that has them.
class AdoConnection final : public base::Connection {
public:
    explicit AdoConnection(Dispatch connection) : connection_(std::move(connection)) {}

    /// The connection itself, to hand it on.
    const ComPtr<IDispatch>& object() const { return connection_.object(); }

    /// Of a batch with several queries the first one's rows are answered: ADO gives up the rows of
    /// one query before it tells whether there is another.
    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    Dispatch newRecordset();

    Dispatch connection_;
};

} // namespace tellurix::windows::ado
