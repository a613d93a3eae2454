#pragma once

#include "module/base/Locale.h"
#include "module/ui/controls/Grid.h"

#include <cstddef>
#include <vector>

namespace tellurix::ui {

/// Lets the user order a grid's rows by a click on a heading, another one the other way. A column whose
/// texts are all numbers, or all dates, is ordered by what they mean, any other one by its letters without
/// regard to capitals; what is empty comes first. The order is the one that the grid's columns are marked
/// with.
class TextSorting {
public:
    TextSorting(Grid& grid, const base::Locale& locale);

    /// Shows other rows, in the order that is marked.
    void show(std::vector<Grid::Row> rows);
    /// Which of the rows that were given stands in a row of the grid.
    std::size_t originOf(int row) const { return origins_.at(static_cast<std::size_t>(row)); }
    /// The row in which one of those that were given stands.
    int rowOf(std::size_t origin) const;

private:
    void sortBy(int column);
    /// Orders the rows as the columns are marked.
    void takeOrder();
    /// @param current of the rows that were given, the one that is the current one
    void draw(std::size_t current);

    Grid& grid_;
    base::Locale locale_;
    std::vector<Grid::Row> rows_; ///< as they were given
    std::vector<std::size_t> origins_;
};

} // namespace tellurix::ui
