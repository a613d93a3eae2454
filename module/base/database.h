#pragma once

#include "module/base/Decimal.h"
#include "module/base/date_time.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace tellurix::base {

/// The port to the database: a connection that takes one statement text at a time, in T-SQL, and
/// recordsets that are opened, read and closed within one routine. Adapters exist for each way to
/// reach a database; a screen cannot tell them apart.

/// NULL in a field.
using Null = std::monostate;

/// What a field holds: nothing, a flag (bit), an integer, an exact number (decimal, money), a
/// floating-point number, a text (UTF-8), or a date with its time.
using Value = std::variant<Null, bool, std::int64_t, Decimal, double, std::string, DateTime>;

/// The type of a column, known before a row has been read.
enum class FieldType {
    flag,
    tinyInteger,
    smallInteger,
    integer,
    bigInteger,
    decimal,
    floating,
    text,
    dateTime
};

/// What kind of trouble a database error is, for those who can do something about it.
enum class DatabaseErrorCategory {
    syntax,      ///< the text is no statement that the server knows
    unknownName, ///< a table or column that does not exist
    conversion,  ///< a value that does not fit the type it meets
    constraint,  ///< a key, uniqueness or NOT NULL rule of the table
    locked,      ///< another session holds the database for too long
    connection,  ///< the database cannot be reached
    storageFull, ///< there is no room left for what was to be written
    readOnly,    ///< the database can only be read
    damaged,     ///< the database's file does not hold what it should
    missing,     ///< the database's file is not, or no longer, in its place
    other
};

/// An error that the database reported for a statement.
class DatabaseError : public std::runtime_error {
public:
    static constexpr std::size_t noPosition = static_cast<std::size_t>(-1);

    DatabaseError(DatabaseErrorCategory category, const std::string& message, std::string statement,
                  std::size_t position = noPosition, int nativeCode = 0, std::string sqlState = {})
        : std::runtime_error(message),
          category_(category),
          statement_(std::move(statement)),
          position_(position),
          nativeCode_(nativeCode),
          sqlState_(std::move(sqlState)) {}

    DatabaseErrorCategory category() const { return category_; }
    /// The statement text as it was sent.
    const std::string& statement() const { return statement_; }
    /// Byte offset in the statement text where the trouble was found, or `noPosition`.
    std::size_t position() const { return position_; }
    /// The server's own number of the error, 0 when it has none.
    int nativeCode() const { return nativeCode_; }
    /// The five-character SQLSTATE, empty when the server gives none.
    const std::string& sqlState() const { return sqlState_; }

private:
    DatabaseErrorCategory category_;
    std::string statement_;
    std::size_t position_;
    int nativeCode_;
    std::string sqlState_;
};

/// What one row holds, by the number and by the name of its fields.
class Fields {
public:
    virtual ~Fields() = default;

    virtual std::size_t fieldCount() const = 0;
    virtual std::string fieldName(std::size_t index) const = 0;
    /// The value of the row's field.
    virtual Value field(std::size_t index) = 0;

    /// The first column of that name, in any case of its letters.
    /// @throws DatabaseError (unknownName) when there is none.
    std::size_t fieldIndex(std::string_view name) const;
    Value field(std::string_view name) { return field(fieldIndex(name)); }

    /// Field readers that say what NULL becomes. A number that does not fit, or a text that is no
    /// number, is a DatabaseError (conversion).
    std::int64_t integer(std::size_t index, std::int64_t ifNull = 0);
    std::int64_t integer(std::string_view name, std::int64_t ifNull = 0) {
        return integer(fieldIndex(name), ifNull);
    }
    std::string text(std::size_t index, std::string_view ifNull = "");
    std::string text(std::string_view name, std::string_view ifNull = "") {
        return text(fieldIndex(name), ifNull);
    }
    bool flag(std::string_view name, bool ifNull = false);
};

/// The rows that a statement answered with, read forward, one at a time. It starts on the first
/// row; its columns and their types are known before any row is fetched. Closed by destruction.
class Recordset : public Fields {
public:
    virtual FieldType fieldType(std::size_t index) const = 0;
    /// Most characters that a text column takes; 0 where there is no limit, and for other types.
    virtual int textWidth(std::size_t index) const = 0;

    /// True when there is no (further) row.
    virtual bool atEnd() = 0;
    virtual void moveNext() = 0;
};

/// A recordset whose rows can be changed in place, for the few places that edit a row: set the
/// fields, then `update`. Fields that were not set keep their values.
class UpdatableRecordset : public Recordset {
public:
    virtual void setField(std::string_view name, Value value) = 0;
    /// Writes the fields set since the last move.
    virtual void update() = 0;
    /// Deletes the current row; the next call of moveNext goes to the row after it.
    virtual void remove() = 0;
};

/// What a statement text did: rows, when it ends in a query, and how many rows it changed, or -1
/// where the server does not count them.
struct ExecuteResult {
    std::unique_ptr<Recordset> rows;
    std::int64_t rowsAffected = -1;
};

/// An open connection. Every statement is sent by itself; there are no transactions.
class Connection {
public:
    virtual ~Connection() = default;

    /// Sends one statement text, which may be a batch, and returns what its last query answers.
    /// Rows are fetched when they are asked for: a recordset that is only asked for its columns
    /// costs the same however large the table is.
    /// @throws DatabaseError
    virtual ExecuteResult execute(std::string_view statement) = 0;

    /// Opens the rows of a query on one table for editing.
    /// @throws DatabaseError
    virtual std::unique_ptr<UpdatableRecordset> openUpdatable(std::string_view query) = 0;

    /// The rows of a query, read to the end: nothing of it stays open, and another statement may be sent
    /// while the rows are looked at. Servers answer one statement at a time; for a second one, drivers open
    /// a connection of their own, which has none of the host's settings.
    /// @throws DatabaseError also when the text answers without rows
    std::unique_ptr<Recordset> open(std::string_view query);
};

} // namespace tellurix::base
