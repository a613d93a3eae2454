#pragma once

#include "module/base/Clock.h"
#include "module/base/database.h"

#include <chrono>
#include <filesystem>
#include <memory>

namespace tellurix::embedded {

/// A database in one file that understands the module's T-SQL.
///
/// Any number of connections, in this process and in others, work on the file at the same time:
/// readers never wait, writers wait for each other. Every connection belongs to the thread that
/// uses it; `connect` itself may be called from any thread.
class Database {
public:
    struct Options {
        /// Whether a file that does not exist is made; without it a missing file is an error.
        bool create = false;
        /// How long a statement waits for another session's write before it gives up with
        /// DatabaseError (locked).
        std::chrono::milliseconds patience{5000};
    };

    /// @param clock what GETDATE() answers; has to outlive the database and its connections
    /// @throws base::DatabaseError when the file cannot be opened (connection), is not there (missing), is
    ///         no database (damaged) or another program's, which is left unchanged (connection)
    Database(std::filesystem::path file, const base::Clock& clock, Options options);
    Database(std::filesystem::path file, const base::Clock& clock)
        : Database(std::move(file), clock, Options()) {}

    const std::filesystem::path& file() const { return file_; }
    /// Whether the file could only be read when it was opened; every write to it fails then.
    bool isReadOnly() const { return readOnly_; }

    /// Brings everything that was written into the one file, and that onto the disk, so that it can be
    /// copied or moved. Nobody may be connected meanwhile.
    /// @throws base::DatabaseError (storageFull, locked)
    void moveLogIntoFile() const;

    std::unique_ptr<base::Connection> connect() const;

private:
    std::filesystem::path file_;
    const base::Clock& clock_;
    Options options_;
    bool readOnly_ = false;
};

} // namespace tellurix::embedded
