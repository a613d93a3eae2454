#include "module/logistics/helper_export.h"

#include "module/base/number_format.h"
#include "module/logistics/quantity_cell.h"
#include "module/logistics/spreadsheet_parameters.h"

#include <cstddef>
#include <vector>

namespace tellurix::logistics {

std::string helperExport(parts::KeyedGrid& helpers, const ui::Grid& shown) {
    std::vector<std::vector<std::string>> table(shown.rows().size() + 2);
    std::string formats;
    std::size_t lastNumber = 0;
    bool named = false;
    for (std::size_t i = 0; i < helpers.columns().size(); ++i) {
        const parts::KeyedGrid::Column& column = helpers.columns()[i];
        // What no field stands behind is the mark of a changed row.
        if (!shown.columns()[i].visible || column.field.empty()) continue;
        table.front().push_back(shown.columns()[i].caption);
        for (std::size_t row = 0; row < shown.rows().size(); ++row)
            table[row + 1].push_back(shown.rows()[row][i]);

        formats += column.rightAligned ? "0;" : ";";
        if (column.rightAligned) lastNumber = formats.size();
        // The member numbers are numbers, too, but not quantities.
        const bool quantity = column.rightAligned && !column.mask.empty();
        const bool total = !column.rightAligned && !named;
        named |= total;
        table.back().push_back(
            total      ? "SUMME:"
            : quantity ? base::formatNumber(helpers.sum(column.field), quantityMask, base::Locale::german())
                       : "");
    }
    return spreadsheetParameters(formats.substr(0, lastNumber), tableText(table));
}

} // namespace tellurix::logistics
