#pragma once

#include "database/embedded/Database.h"
#include "standin/services/values/SystemClock.h"
#include "standin/workbench/CommandLine.h"
#include "standin/workbench/TraceFile.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace tellurix::standin {

/// The database that the command line names, made when missing, and its trace file.
class DatabaseAccess {
public:
    /// @throws std::exception when the database or the trace file cannot be used
    explicit DatabaseAccess(const CommandLine& line);

    /// A connection of its own, for one session. Any thread may ask for one.
    /// @throws std::exception also when dates are not read with the day first, because every date
    /// that the module writes would be another one then
    std::unique_ptr<base::Connection> connect();

    /// Whether nothing can be saved.
    bool isReadOnly() const { return database_.isReadOnly(); }
    const std::filesystem::path& file() const { return database_.file(); }

private:
    SystemClock clock_;
    std::optional<TraceFile> trace_;
    embedded::Database database_;
};

} // namespace tellurix::standin
