#pragma once

#include "database/embedded/sqlite/SqlSession.h"
#include "database/embedded/sqlite/SqliteStatement.h"
#include "database/embedded/sqlite/file_origin.h"

#include <sqlite3.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tellurix::embedded {

/// A translated statement met a table that another connection has changed since. Nothing has been
/// done; it has to be translated and compiled anew.
struct SchemaChanged {};

/// A translated statement is nested more deeply than SQLite's parser takes.
struct NestedTooDeeply {};

/// A connection to the file through SQLite's C interface, with our functions and our collation,
/// and with SQLite's errors turned into faults. A file of another program is refused unchanged.
class SqliteConnection {
public:
    /// @param create whether a file that does not exist is made
    SqliteConnection(const std::filesystem::path& file, bool create, std::chrono::milliseconds patience,
                     const base::Clock& clock);

    SqlSession& session() { return session_; }
    const SqlSession& session() const { return session_; }
    sqlite3* handle() { return handle_.get(); }

    /// @param lasting it will be run many times
    SqliteStatement prepare(std::string_view sql, bool lasting = false);
    /// Runs statements that answer nothing.
    void run(const std::string& sql);
    /// The file is write-protected, or lies where nothing can be written.
    bool isReadOnly() const;
    /// @throws Fault (missing) when the file was deleted or moved since it was opened: what is written
    ///         then goes nowhere
    void requireFileInPlace();
    /// Brings everything into the one file, and that onto the disk.
    void moveLogIntoFile();
    std::int64_t changes() const { return sqlite3_changes64(handle_.get()); }

    /// Throws what the last call's result code means.
    [[noreturn]] void fail(int code);

private:
    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
    };

    void configure(FileOrigin origin);
    [[noreturn]] void failForeign() const;
    bool holdsOurs();
    /// The number that a query or PRAGMA answers with.
    std::int64_t number(std::string_view query);
    void rebuildAfterNewCollation();

    SqlSession session_;
    std::chrono::milliseconds patience_;
    std::string name_; ///< of the file
    std::unique_ptr<sqlite3, Close> handle_;
};

/// Undoes everything since its construction unless `commit` is reached.
class SqliteTransaction {
public:
    enum class Kind {
        write,   ///< nobody else writes meanwhile
        variable ///< the file is not touched, so nobody is held up
    };

    explicit SqliteTransaction(SqliteConnection& connection, Kind kind = Kind::write);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    void commit();

private:
    SqliteConnection& connection_;
    bool open_ = true;
};

} // namespace tellurix::embedded
