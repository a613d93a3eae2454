#pragma once

#include "module/base/database.h"

#include <string>
#include <vector>

namespace tellurix::logistics {

/// A listing of announced quantities for the spreadsheet, with their sum below.
struct QuantityListing {
    struct Column {
        const char* heading;
        bool number;
    };

    std::string title;
    std::string query; ///< with the announced quantity as its last field
    std::vector<Column> columns;

    /// Reads the listing.
    /// @return what the spreadsheet export service is told (see `spreadsheetParameters`)
    std::string parameters(base::Connection& connection) const;
};

/// The three listings, in the order in which they are exported.
std::vector<QuantityListing> quantityListings();

} // namespace tellurix::logistics
