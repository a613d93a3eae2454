#pragma once

#include "database/odbc/Session.h"
#include "module/base/database.h"

namespace tellurix::odbc {

/// The database port over a session of a server.
class OdbcConnection final : public base::Connection {
public:
    explicit OdbcConnection(std::shared_ptr<Session> session) : session_(std::move(session)) {}

    /// A plain query is sent when somebody asks for its columns or its rows, and repeated once on a
    /// connection that turns out to be lost. All else is sent at once and never twice; all its answers are
    /// read, so that an error of a later statement is told here.
    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    std::shared_ptr<Session> session_;
};

} // namespace tellurix::odbc
