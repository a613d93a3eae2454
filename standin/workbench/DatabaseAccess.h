#pragma once

#include "database/embedded/Database.h"
#include "database/odbc/Database.h"
#include "standin/services/values/SystemClock.h"
#include "standin/workbench/CommandLine.h"
#include "standin/workbench/TraceFile.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace tellurix::standin {

/// The database that the command line names, a file that is made when missing or one on a server, and its
/// trace file.
class DatabaseAccess {
public:
    /// @throws std::exception when the database file, what names the server, or the trace file cannot be used
    explicit DatabaseAccess(const CommandLine& line);

    /// A connection of its own, for one session. Any thread may ask for one.
    /// @throws std::exception also when dates are not read with the day first, because every date
    /// that the module writes would be another one then
    std::unique_ptr<base::Connection> connect();

    /// Whether nothing can be saved, as far as that is known without trying.
    bool isReadOnly() const { return file_ && file_->isReadOnly(); }
    /// The file, or where on a server it is.
    std::string name() const;
    /// The folder of the file; empty for a database on a server.
    std::filesystem::path folder() const {
        return file_ ? std::filesystem::absolute(file_->file()).parent_path() : std::filesystem::path{};
    }

private:
    SystemClock clock_;
    std::optional<TraceFile> trace_;
    /// One of both.
    std::unique_ptr<embedded::Database> file_;
    std::unique_ptr<odbc::Database> server_;
};

} // namespace tellurix::standin
