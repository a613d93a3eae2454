#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// The table that the module hands over to be shown in a spreadsheet.
struct TableText {
    std::vector<bool> numeric; ///< of the columns from the left; those beyond are texts
    int row = 1;               ///< of the sheet, in which the table begins
    std::vector<std::vector<std::string>> rows;

    /// @param parameters lines "KEY=value" with the keys FORMAT, ROW and, as the last one, TABLE
    /// @throws std::invalid_argument when they are not of that form
    static TableText read(std::string_view parameters);

    bool isNumeric(std::size_t column) const { return column < numeric.size() && numeric[column]; }
};

} // namespace tellurix::standin
