#include "module/logistics/reports/quantity_listings.h"

#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/logistics/quantity_cell.h"
#include "module/logistics/reports/quantity_report_statements.h"
#include "module/logistics/spreadsheet_parameters.h"

#include <algorithm>

namespace tellurix::logistics {

namespace {

constexpr QuantityListing::Column helperNumber{"WH-Nr.", true};
constexpr QuantityListing::Column helperName{"Waldhelfer", false};
constexpr QuantityListing::Column contract{"Vertrag / Mengeneinheit", false};
constexpr QuantityListing::Column quantity{"Menge angem.", true};

} // namespace

std::string QuantityListing::parameters(base::Connection& connection) const {
    const base::Locale locale = base::Locale::german();
    const std::size_t last = columns.size() - 1;
    std::vector<std::vector<std::string>> table(1);
    std::string formats;
    for (const Column& column : columns) {
        table.front().emplace_back(column.heading);
        formats += column.number ? "0;" : ";";
    }
    base::Decimal sum;
    for (auto row = connection.open(query); !row->atEnd(); row->moveNext()) {
        std::vector<std::string> cells;
        for (std::size_t column = 0; column < last; ++column)
            cells.push_back(row->text(column));
        cells.push_back(base::numberText(row->field(last), quantityMask, locale));
        sum = sum + base::numberIn(row->field(last)).value_or(base::Decimal{});
        table.push_back(std::move(cells));
    }
    std::vector<std::string> total(columns.size());
    const auto firstText = std::ranges::find(columns, false, &Column::number);
    total[static_cast<std::size_t>(firstText - columns.begin())] = "SUMME:";
    total[last] = base::formatNumber(sum, quantityMask, locale);
    table.push_back(std::move(total));
    return spreadsheetParameters(formats, tableText(table));
}

std::vector<QuantityListing> quantityListings() {
    return {{"Waldhelfer und Verträge",
             quantity_report::listingByHelperAndContract(),
             {helperNumber, helperName, contract, quantity}},
            {"Verträge", quantity_report::listingByContract(), {contract, quantity}},
            {"Waldhelfer", quantity_report::listingByHelper(), {helperNumber, helperName, quantity}}};
}

} // namespace tellurix::logistics
