#pragma once

#include "database/odbc/wide.h"
#include "module/base/database.h"

#include <string>
#include <variant>

/// Between the values of the database port and those of ODBC.
namespace tellurix::odbc {

/// A column of an answer or of a table.
struct Column {
    std::string name;
    SQLSMALLINT sqlType = SQL_UNKNOWN_TYPE;
    SQLULEN size = 0; ///< characters of a text, digits of a number; 0 where there is no limit
    SQLSMALLINT scale = 0;

    base::FieldType type() const;
    /// Most characters of a text; 0 where there is no limit, and for other types.
    int textWidth() const;
};

/// The text that a field holds; an empty one for NULL and for what is no text.
std::string textOf(const base::Value& value);
/// A number as a driver writes it. Decimals that 18 digits have no room for are rounded off, half away from
/// zero.
/// @param statement that answered with it
/// @throws base::DatabaseError (conversion) when 18 digits before the point do not suffice, or it is none
base::Decimal decimalFrom(const std::string& text, std::string_view statement);
base::DateTime momentFrom(const SQL_TIMESTAMP_STRUCT& moment);

/// A value in the form in which it goes to the server as a parameter, which it lives as long as.
class Parameter {
public:
    /// @param column that it goes into or is compared with: numbers are brought to its scale, half away from
    ///        zero, because drivers cut them, and texts that are numbers become numbers
    Parameter(const base::Value& value, const Column& column);

    /// @return what the driver says
    SQLRETURN bindTo(SQLHSTMT statement, SQLUSMALLINT number);

private:
    struct None {};
    struct Number {
        std::string text;
        SQLSMALLINT scale;
    };

    void setNumber(const base::Decimal& number, const Column& column);
    void setText(const std::string& text, const Column& column);

    std::variant<None, std::u16string, Number, SQLBIGINT, SQLDOUBLE, SQLCHAR, SQL_TIMESTAMP_STRUCT> value_;
    SQLSMALLINT sqlType_;
    SQLLEN length_ = 0;
};

} // namespace tellurix::odbc
