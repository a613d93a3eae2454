#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::odbc {

/// Whether a text is one query and nothing else: sent twice it does no more than sent once, and sent later it
/// answers the same. What is not surely one, is none.
bool isPlainQuery(std::string_view text);

/// A query whose rows are to be edited.
struct EditedQuery {
    std::string table; ///< as it stands there, with a schema where it has one
    std::string schema;
    std::string name; ///< without schema and quotes
    bool quoted = false;
    std::size_t endOfList = 0; ///< where further columns can be put into the text

    /// @return nothing when it is no query on one table
    static std::optional<EditedQuery> read(std::string_view text);
};

} // namespace tellurix::odbc
