#include "module/ui/input/TextSorting.h"

#include "module/base/Decimal.h"
#include "module/base/date_format.h"
#include "module/base/number_format.h"
#include "module/base/text.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <optional>
#include <string>

namespace tellurix::ui {

namespace {

/// The order of the rows by what a column's texts mean, if `read` understands all that are not empty.
template <typename Read>
bool orderBy(std::vector<std::size_t>& order, const std::vector<std::string>& texts, const Read& read) {
    std::vector<decltype(read(texts.front()))> values;
    for (const std::string& text : texts) {
        values.push_back(read(text));
        if (!values.back() && !text.empty()) return false;
    }
    std::ranges::stable_sort(
        order, std::less<>{}, [&values](std::size_t i) -> const auto& { return values[i]; });
    return true;
}

} // namespace

TextSorting::TextSorting(Grid& grid, const base::Locale& locale) : grid_(grid), locale_(locale) {
    grid_.onHeadingClick = [this](int column) { sortBy(column); };
    grid_.onLayoutRestored = [this] { takeOrder(); };
}

void TextSorting::sortBy(int column) {
    const bool again = grid_.columns().at(static_cast<std::size_t>(column)).order == Grid::Order::ascending;
    grid_.markOrder(column, again ? Grid::Order::descending : Grid::Order::ascending);
    takeOrder();
}

void TextSorting::takeOrder() {
    if (grid_.currentRow() == Grid::none) return;
    // Cells may have been written since.
    for (std::size_t row = 0; row < origins_.size(); ++row)
        rows_[origins_[row]] = grid_.rows().at(row);
    draw(originOf(grid_.currentRow()));
}

void TextSorting::show(std::vector<Grid::Row> rows) {
    rows_ = std::move(rows);
    draw(0);
}

int TextSorting::rowOf(std::size_t origin) const {
    return static_cast<int>(std::ranges::find(origins_, origin) - origins_.begin());
}

void TextSorting::draw(std::size_t current) {
    origins_.resize(rows_.size());
    std::iota(origins_.begin(), origins_.end(), std::size_t{0});
    const auto by = std::ranges::find_if(
        grid_.columns(), [](const Grid::Column& column) { return column.order != Grid::Order::none; });
    if (by != grid_.columns().end() && !rows_.empty()) {
        std::vector<std::string> texts;
        for (const Grid::Row& row : rows_)
            texts.push_back(row.at(static_cast<std::size_t>(by - grid_.columns().begin())));
        if (!orderBy(origins_, texts,
                     [this](const std::string& t) { return base::parseNumber(t, locale_); }) &&
            !orderBy(origins_, texts, [](const std::string& t) { return base::parseDate(t); }))
            orderBy(origins_, texts, [](const std::string& t) { return std::optional{base::toUpper(t)}; });
        if (by->order == Grid::Order::descending) std::ranges::reverse(origins_);
    }
    std::vector<Grid::Row> ordered;
    for (const std::size_t row : origins_)
        ordered.push_back(rows_[row]);
    grid_.setRows(std::move(ordered));
    if (current < origins_.size()) grid_.setCurrent(rowOf(current), grid_.currentColumn());
}

} // namespace tellurix::ui
