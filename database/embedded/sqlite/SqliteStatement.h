#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace tellurix::embedded {

class SqliteConnection;

/// A statement that SQLite has compiled. It belongs to its connection, which has to outlive it.
class SqliteStatement {
public:
    SqliteStatement() = default;
    SqliteStatement(SqliteConnection& connection, sqlite3_stmt* statement)
        : connection_(&connection), statement_(statement) {}

    explicit operator bool() const { return statement_ != nullptr; }

    /// Goes to the next row.
    /// @return false when there is none; the statement is then ready to run again
    /// @throws Fault, or SchemaChanged before anything was read or written
    bool step();
    /// Ends the run and gives up its place in the database; bound values stay.
    void reset() { sqlite3_reset(statement_.get()); }

    void bindNull(int parameter) { sqlite3_bind_null(statement_.get(), parameter); }
    void bind(int parameter, std::int64_t value) { sqlite3_bind_int64(statement_.get(), parameter, value); }
    void bind(int parameter, double value) { sqlite3_bind_double(statement_.get(), parameter, value); }
    void bind(int parameter, std::string_view value) {
        sqlite3_bind_text64(statement_.get(), parameter, value.data(), value.size(), SQLITE_TRANSIENT,
                            SQLITE_UTF8);
    }
    /// @param destroy is called when something else is bound there, and with the statement
    void bindPointer(int parameter, void* pointer, const char* type, void (*destroy)(void*)) {
        sqlite3_bind_pointer(statement_.get(), parameter, pointer, type, destroy);
    }

    int columnCount() const { return sqlite3_column_count(statement_.get()); }
    int columnType(int column) const { return sqlite3_column_type(statement_.get(), column); }
    bool isNull(int column) const { return columnType(column) == SQLITE_NULL; }
    std::int64_t integer(int column) const { return sqlite3_column_int64(statement_.get(), column); }
    double floating(int column) const { return sqlite3_column_double(statement_.get(), column); }
    /// Valid until the next step.
    std::string_view text(int column) const {
        const void* const bytes = sqlite3_column_text(statement_.get(), column);
        return {static_cast<const char*>(bytes),
                static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
    }

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    SqliteConnection* connection_ = nullptr;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

} // namespace tellurix::embedded
