#pragma once

#include "database/odbc/Database.h"
#include "tests/support/TestFolder.h"

#include <cstdint>
#include <memory>
#include <string>
#include <sys/types.h>

namespace tellurix::tests {

/// A PostgreSQL server in a folder of its own, on a free port of this machine alone. It ends with the object,
/// and with a program that is killed.
class PostgresServer {
public:
    static constexpr const char* password = "geheim;}42";

    PostgresServer();
    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// The one of this program, started when it is first asked for.
    static PostgresServer& shared();

    /// @param port of something in between; 0 for the server's own
    odbc::Source source(std::uint16_t port = 0) const;
    std::uint16_t port() const { return port_; }
    /// What a session needs to read days as a T-SQL one does, and to wait no longer for a lock than tests do.
    /// @param schema in which the session's tables are
    static odbc::SessionRules rules(const std::string& schema = "public");
    std::unique_ptr<base::Connection> connect(const std::string& schema = "public") const;

    /// As a machine that loses its power, and as one that comes back.
    void kill();
    void start();

private:
    TestFolder folder_;
    std::uint16_t port_ = 0;
    pid_t process_ = -1;
};

} // namespace tellurix::tests
