#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::odbc {

/// Where the database is and who signs on, without anybody seeing the password.
class Source {
public:
    /// @param text a connection string (`DRIVER=…;SERVER=…`), the name of a data source, or `@FILE` for a
    ///        file that holds one of them and that only its owner can read. Where no driver is named it is
    ///        the one for T-SQL servers that Debian has.
    /// @throws std::runtime_error for a file that cannot be read, or that others can read
    static Source parse(std::string_view text);

    /// With the password: for the driver alone.
    const std::string& connectionString() const { return connectionString_; }
    /// For messages and logs: the same without password.
    const std::string& description() const { return description_; }
    /// A text of somebody else's, such as a driver's error, with the password made unreadable.
    std::string withoutSecrets(std::string text) const;

private:
    std::string connectionString_;
    std::string description_;
    std::vector<std::string> secrets_;
};

} // namespace tellurix::odbc
