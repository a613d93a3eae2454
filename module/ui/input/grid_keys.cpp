#include "module/ui/input/grid_keys.h"

#include "module/base/text.h"
#include "module/ui/input/control_keys.h"

#include <algorithm>
#include <vector>

namespace tellurix::ui {

namespace {

bool isSeen(const Grid& grid, int column) {
    return grid.columns()[static_cast<std::size_t>(column)].visible;
}

int lastColumn(const Grid& grid) {
    return static_cast<int>(grid.columns().size()) - 1;
}

/// Where a key leads from a cell.
Grid::Cell movedCell(const Grid& grid, Grid::Cell from, const KeyDown& key) {
    switch (key.key) {
    case Key::left:
        return {from.row, seenColumn(grid, from.column, -1)};
    case Key::right:
        return {from.row, seenColumn(grid, from.column, +1)};
    case Key::home:
    case Key::end: {
        const bool toEnd = key.key == Key::end;
        const int edge = seenColumn(grid, toEnd ? lastColumn(grid) + 1 : -1, toEnd ? -1 : +1);
        const int row = toEnd ? static_cast<int>(grid.rows().size()) - 1 : 0;
        return {key.ctrl ? row : std::max(from.row, 0), edge};
    }
    default:
        return {movedIndex(key.key, from.row, static_cast<int>(grid.rows().size()), grid.visibleRows()),
                from.column};
    }
}

void sizeByKey(Grid& grid, const KeyDown& key, int shownWidth) {
    const int column = grid.currentColumn();
    const int width = shownWidth > 0 ? shownWidth : grid.columns()[static_cast<std::size_t>(column)].width;
    const bool wider = key.key == Key::right;
    if (wider && key.shift) {
        grid.sizeColumn(column, Grid::fitting);
    } else {
        grid.sizeColumn(column, std::max(width + (wider ? 1 : -1), 1));
    }
    grid.onColumnSized();
}

/// Index of the next row from `first` on that begins so in a column, or `none`.
int rowBeginning(const Grid& grid, int column, const std::string& beginning, int first) {
    const int count = static_cast<int>(grid.rows().size());
    for (int i = 0; i < count; ++i) {
        const int row = (first + i) % count;
        if (base::toUpper(grid.cell(row, column)).starts_with(beginning)) return row;
    }
    return Grid::none;
}

} // namespace

int seenColumn(const Grid& grid, int column, int step) {
    for (int next = column + step; next >= 0 && next <= lastColumn(grid); next += step)
        if (isSeen(grid, next)) return next;
    return std::clamp(column, 0, std::max(lastColumn(grid), 0));
}

void applyGridKey(Grid& grid, const KeyDownEvent& event) {
    const KeyDown& key = event.key;
    if (grid.columns().empty()) return;
    if (key.key == Key{'A'} && key.ctrl) return grid.markAll();
    if (!navigates(key.key)) return;
    const bool sideways = key.key == Key::left || key.key == Key::right;
    if (key.ctrl && sideways) return sizeByKey(grid, key, event.columnWidth);
    if (grid.rows().empty()) return;
    if (key.shift) return grid.extendTo(movedCell(grid, grid.farEnd(), key));
    const Grid::Cell to = movedCell(grid, {grid.currentRow(), grid.currentColumn()}, key);
    // A key that leads nowhere still brings the current cell back that was scrolled away.
    if (to == Grid::Cell{grid.currentRow(), grid.currentColumn()}) grid.setCurrent(to.row, to.column);
    choose(grid, to.row, to.column);
}

int RowSearch::typed(const Grid& grid, char32_t character, Clock::time_point now) {
    if (&grid != grid_ || now - last_ > pause) typed_.clear();
    grid_ = &grid;
    last_ = now;
    if (character == U' ' && typed_.empty()) return Grid::none;
    typed_ += base::toUpper(character);
    const int count = static_cast<int>(grid.rows().size());
    if (count == 0) return Grid::none;

    const bool repeated = std::ranges::all_of(typed_, [this](char32_t c) { return c == typed_.front(); });
    const std::string beginning = base::encodeUtf8(repeated ? typed_.substr(0, 1) : typed_);
    const int first = (std::max(grid.currentRow(), repeated ? -1 : 0) + (repeated ? 1 : 0)) % count;
    std::vector<int> columns{grid.currentColumn()};
    for (int column = 0; column <= lastColumn(grid); ++column)
        columns.push_back(column);
    for (const int column : columns) {
        if (!isSeen(grid, column)) continue;
        if (const int row = rowBeginning(grid, column, beginning, first); row != Grid::none) return row;
    }
    // A blank may have been meant for the row.
    if (character == U' ') typed_.pop_back();
    return Grid::none;
}

} // namespace tellurix::ui
