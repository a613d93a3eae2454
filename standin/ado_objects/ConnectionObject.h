#pragma once

#include "com/automation/DispatchObject.h"
#include "module/base/Clock.h"
#include "module/base/database.h"
#include "standin/ado_objects/ServerErrors.h"
#include "standin/ado_objects/embedded_connection.h"

#include <memory>
#include <string>

namespace tellurix::windows::ado {

/// ADODB.Connection over the embedded database.
class ConnectionObject final : public DispatchObject {
public:
    ConnectionObject(const base::Clock& clock, PrepareFile prepare, const IID& interfaceId)
        : clock_(clock), prepare_(std::move(prepare)), interfaceId_(interfaceId) {}

    /// The connection that an ActiveConnection holds: only one of ours will do, by its own private name.
    /// @throws AutomationError when it is something else
    static ComPtr<ConnectionObject> in(const Variant& value);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** answer) override;

    /// @throws AutomationError when it is closed
    base::Connection& connection();

    /// Runs something on the database. An error of it is kept for `Errors`, and thrown as
    /// AutomationError.
    template <typename Work>
    auto onDatabase(const Work& work) -> decltype(work()) {
        try {
            return work();
        } catch (const base::DatabaseError& error) {
            raise(error);
        }
    }

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return sourceName; }

private:
    void open(const CallArguments& arguments);
    void close(const CallArguments& arguments);
    Variant execute(const CallArguments& arguments);
    [[noreturn]] void raise(const base::DatabaseError& error);

    const base::Clock& clock_;
    PrepareFile prepare_;
    const IID interfaceId_;
    std::string connectionString_;
    std::unique_ptr<base::Connection> connection_;
    std::shared_ptr<ServerErrors> errors_ = std::make_shared<ServerErrors>();
};

} // namespace tellurix::windows::ado
