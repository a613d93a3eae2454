#pragma once

#include "database/odbc/query_text.h"
#include "database/odbc/values.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::odbc {

class Session;

/// What has to be known of a table to edit its rows.
struct TableDescription {
    std::vector<Column> columns;
    std::vector<std::string> key; ///< names of the columns that tell its rows apart; empty for none

    /// The column of that name, in any case of its letters; nothing when there is none.
    const Column* column(std::string_view name) const;

    /// Asks the server, once for each connection. A name without a schema means the table of the session's
    /// own schema, or, where that has none, of any.
    static std::shared_ptr<const TableDescription> of(Session& session, const EditedQuery& query,
                                                      std::string_view told);
};

} // namespace tellurix::odbc
