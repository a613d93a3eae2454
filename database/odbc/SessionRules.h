#pragma once

#include <string>
#include <vector>

namespace tellurix::odbc {

/// What a session is set to before anything is sent on it, and how the server is asked whether that took
/// effect. They are the one thing in which servers of different dialects differ for this adapter.
struct SessionRules {
    /// Each sent by itself, in this order. One that is refused ends the connecting.
    std::vector<std::string> options;
    /// A query for 31 December 2024 out of '31.12.2024': answered with another day or an error where the day
    /// does not come first.
    std::string dayQuestion;
    /// A query for the schema in which names without one are looked up first.
    std::string schemaQuestion;
    /// A query for the name of the login.
    std::string loginQuestion;
    /// The statement that puts a login right whose days do not come first; "{}" is its name.
    std::string remedy;

    /// As the host sets its own connections on a T-SQL server; a lock is waited for five seconds.
    static SessionRules transactSql();
};

} // namespace tellurix::odbc
