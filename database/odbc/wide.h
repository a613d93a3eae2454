#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <string>
#include <string_view>

/// Texts and attributes as the driver manager's functions take them; the encoding is the same for every
/// driver.
namespace tellurix::odbc {

std::u16string wide(std::string_view text);
std::string narrow(std::u16string_view text);

/// As the functions take and fill them.
inline SQLWCHAR* pointer(std::u16string& text) {
    return reinterpret_cast<SQLWCHAR*>(text.data());
}
inline SQLSMALLINT shortLength(const std::u16string& text) {
    return static_cast<SQLSMALLINT>(text.size());
}

/// A number where the functions take a pointer, as they want it for most attributes.
inline SQLPOINTER attribute(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value); // NOLINT(performance-no-int-to-ptr)
}

} // namespace tellurix::odbc
