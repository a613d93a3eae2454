#pragma once

#include "module/base/database.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::tests {

/// What a query answered, with all its rows.
struct TdsTable {
    struct Column {
        std::string name;
        base::FieldType type;
        int width = 0;
        int scale = 4; ///< of a decimal: that of its values, where there are any
    };

    /// @param withRows whether the query is run for more than its columns
    TdsTable(base::Recordset& rows, bool withRows);

    std::vector<Column> columns;
    std::vector<std::vector<base::Value>> rows;
};

/// The bytes of an answer in the protocol of T-SQL servers (TDS 7.4), as far as the driver asks for them.
class TdsMessage {
public:
    const std::string& bytes() const { return bytes_; }

    void number(std::uint64_t value, int bytes);
    void raw(std::string_view text) { bytes_ += text; }
    /// A text with its length in characters before it.
    void text(std::string_view utf8, int lengthBytes);

    void loginAccepted();
    void columns(const TdsTable& table);
    void rows(const TdsTable& table);
    void error(int nativeCode, std::string_view message);
    void returnValue(std::int32_t handle);
    /// @param token 0xFD after a batch, 0xFE after a procedure, 0xFF for a statement within one
    /// @param count of rows; -1 where nothing was counted
    void done(std::uint8_t token, bool failed, std::int64_t count, bool more = false);

private:
    void type(const TdsTable::Column& column);
    void value(const TdsTable::Column& column, const base::Value& held);

    std::string bytes_;
};

/// Reads what a client has sent.
class TdsReader {
public:
    explicit TdsReader(std::string_view bytes) : rest_(bytes) {}

    bool atEnd() const { return rest_.empty(); }
    std::uint64_t number(int bytes);
    std::string_view raw(std::size_t bytes);
    std::string text(std::size_t characters);
    /// A parameter of a procedure as the T-SQL that declares a variable of its name with its value.
    struct Parameter {
        std::string name;
        std::string type;
        std::string literal;
        std::string plain; ///< of a text
        std::int64_t integer = 0;
    };
    Parameter parameter();

private:
    std::string_view rest_;
};

} // namespace tellurix::tests
