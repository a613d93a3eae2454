#pragma once

#include "database/embedded/values/Collation.h"
#include "module/base/database.h"

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::bench {

class StraightStatement;

/// A database file opened as somebody would who writes for SQLite alone, with the settings that the
/// embedded database has: the figures that its layers above SQLite are compared with.
class StraightConnection {
public:
    explicit StraightConnection(const std::filesystem::path& file);

    sqlite3* handle() const { return handle_.get(); }
    /// Runs statements that answer nothing.
    void run(const std::string& sql);
    /// @throws std::runtime_error with SQLite's message unless the code means success
    void require(int code) const;

private:
    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
    };

    const embedded::Collation collation_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// The values that a statement works on, and what its columns hold, one character each:
///
///     i integer   b flag   t text   d date   0 … 9 a decimal with so many decimals   - not bound
using Kinds = std::string_view;

/// A statement, or a few that do one thing together, prepared once and run many times with the same
/// values. The first may answer rows, of which every column is read as a value of its type.
class StraightStatement {
public:
    using Row = std::vector<base::Value>;

    /// @param sql separated by semicolons; ?1, ?2, … are the values in their order
    StraightStatement(StraightConnection& connection, std::string_view sql, std::vector<base::Value> values,
                      Kinds columns);

    /// Runs everything and forgets what was read.
    void run();
    /// Runs everything and returns the rows.
    std::vector<Row> rows();

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

    template <typename Take>
    void runEach(const Take& take);
    void bind(sqlite3_stmt* statement) const;
    base::Value value(sqlite3_stmt* statement, int column) const;

    StraightConnection& connection_;
    std::vector<Prepared> statements_;
    std::vector<base::Value> values_;
    std::string columns_;
};

} // namespace tellurix::bench
