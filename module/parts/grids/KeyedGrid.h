#pragma once

#include "module/base/Locale.h"
#include "module/parts/grids/KeyedRow.h"
#include "module/ui/controls/Grid.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tellurix::parts {

/// What a grid shows: rows of a query, each known by its key. It keeps the values as they were read
/// beside the texts of the cells, which may show fewer decimals. A cell shows who has changed its field, and
/// the status line how many rows the user has changed.
///
/// Some of the rows can be hidden from the eye, and all put into another order than that of the query. A
/// row's number is that of the grid; what works on the rows as a whole (sums, copying, the text) works on all
/// of them, the hidden ones too, in the order of the grid.
class KeyedGrid {
public:
    struct Column {
        std::string caption = {};
        int width = 10;
        std::string field = {}; ///< of the query; empty for a cell that the screen writes by itself
        std::string mask = {};  ///< for a number or a date; a date without one is "dd.mm.yyyy"
        bool rightAligned = false;
        bool hidden = false;
        bool editable = false;
        ui::Grid::Narrow narrow = ui::Grid::Narrow::beside;
        bool sorts = false; ///< a click on its heading orders the rows by it, another one the other way
        std::string toolTip = {};
        /// What the cell shows where it is not one field in a mask.
        std::function<std::string(KeyedRow&)> shown = {};
        bool remark = false; ///< says something about the row, beside its data
        /// Whether what the cell shows is a warning.
        std::function<bool(KeyedRow&)> warns = {};
    };

    /// @param locale for the numbers that are shown in a mask
    explicit KeyedGrid(ui::Grid& grid, const base::Locale& locale = base::Locale::german())
        : grid_(grid), locale_(locale) {}
    // The grid calls it.
    KeyedGrid(const KeyedGrid&) = delete;
    KeyedGrid& operator=(const KeyedGrid&) = delete;

    /// The columns, for rows that are shown from now on.
    void setColumns(std::vector<Column> columns);
    const std::vector<Column>& columns() const { return columns_; }
    /// Whether the cells of editable columns can be edited, from now on.
    void openCells(bool open);
    bool editable(int column) const { return columns_.at(static_cast<std::size_t>(column)).editable; }

    /// Shows other rows. The row with the current key stays current; where it is gone, the row that
    /// stands in its place now.
    void show(std::vector<KeyedRow> rows);
    void clear() { show({}); }
    /// Writes all cells again, for example in other words; not those that the screen writes.
    void redraw();
    /// Hides the rows that do not fulfil a condition, from now on and as they are now; none hides none.
    void showOnly(std::function<bool(KeyedRow&)> condition);

    /// Orders the rows, from now on, by the values of a column: what is empty first, numbers
    /// by their size, texts without regard to capital letters. The order is the one that the grid's columns
    /// are marked with.
    void sortBy(int column, bool descending);
    /// Orders the rows as the columns are marked, after somebody else has marked them.
    void takeOrder() { drawRows(currentKey()); }

    int rowCount() const { return static_cast<int>(seen_.size()); }
    bool empty() const { return rows_.empty(); }
    /// All rows, the hidden ones too. Whatever shows or orders them anew moves them.
    std::span<KeyedRow> rows() { return rows_; }
    KeyedRow& row(int row) { return rows_[seen_.at(static_cast<std::size_t>(row))]; }
    std::int64_t keyOf(int row) const { return rows_[seen_.at(static_cast<std::size_t>(row))].key(); }
    std::optional<std::int64_t> currentKey() const;
    /// The row with that key, if it is seen.
    std::optional<int> find(std::int64_t key) const;
    /// Makes the row with that key the current one.
    /// @return false when there is none
    bool select(std::int64_t key);

    /// Shows one row as it was read anew.
    void replace(int row, KeyedRow read);
    /// Adds a row that has nothing but its key yet, and makes it the current one.
    void add(std::int64_t key);
    void swap(int row, int other);

    /// Sets one value, as when it was typed, and shows it.
    void setValue(int row, std::string_view field, base::Value value);
    /// Shows that a field came from somebody else, in the row with that key, if there is one.
    void markFromOthers(std::int64_t key, std::string_view field);
    /// How many rows the user has changed, the hidden ones too.
    int touchedRows() const;
    /// Gives a field the values of another one in every row where it has another value, as they were read.
    void copyField(std::string_view from, std::string_view to);
    /// The sum of the numbers of a field; what is empty counts nothing.
    base::Decimal sum(std::string_view field);

    /// A column of a text, by the field that it shows.
    struct TextColumn {
        std::string heading;
        std::string field;
    };
    /// The rows as they are shown, for a spreadsheet: cells separated by tabs, lines by CR LF, the
    /// headings first. A field without a column of its own is written as a cell without a mask; a tab or
    /// a line end in a text becomes a blank.
    std::string text(std::span<const TextColumn> columns);

private:
    std::string cellText(KeyedRow& row, const Column& column) const;
    struct Sorting {
        int column;
        bool descending;
    };
    std::optional<Sorting> sorting() const;
    bool comesBefore(const Sorting& sorting, std::size_t row, std::size_t other);
    void orderRows();
    void drawRow(int row);
    void drawMarks(int row);
    void drawOpenColumns();
    /// Tells the user how many rows he has changed.
    void tellTouched();
    void drawRows(std::optional<std::int64_t> current);
    ui::Grid::Row cellsOf(KeyedRow& row) const;

    ui::Grid& grid_;
    base::Locale locale_;
    std::vector<Column> columns_;
    bool open_ = false;
    int toldTouched_ = 0;
    std::vector<KeyedRow> rows_;
    std::vector<std::size_t> readAt_; ///< beside the rows: their places in the query
    std::function<bool(KeyedRow&)> condition_;
    std::vector<std::size_t> seen_; ///< beside the rows of the grid: which of the rows they are
};

} // namespace tellurix::parts
