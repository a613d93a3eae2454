#include "module/ui/controls/Grid.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::ui {

void Grid::markRowsDirty() {
    mark_.reset();
    rowsDirty_ = true;
    markDirty();
}

void Grid::moveCurrentRow(int row) {
    if (change(currentRow_, row)) reveals_ = true;
}

void Grid::reveal() {
    reveals_ = true;
    markDirty();
}

void Grid::setColumns(std::vector<Column> columns) {
    columns_ = std::move(columns);
    mark_.reset();
    columnsDirty_ = true;
    markDirty();
}

void Grid::markOrder(int column, Order order) {
    for (Column& other : columns_)
        other.order = Order::none;
    columns_.at(static_cast<std::size_t>(column)).order = order;
    columnsDirty_ = true;
    markDirty();
}

void Grid::sizeColumn(int column, int width) {
    Column& sized = columns_.at(static_cast<std::size_t>(column));
    if (width == fitting) {
        std::size_t longest = base::decodeUtf8(sized.caption).size();
        for (const Row& row : rows_)
            longest = std::max(longest, base::decodeUtf8(row.at(static_cast<std::size_t>(column))).size());
        width = static_cast<int>(longest);
    }
    sized.width = std::clamp(width, 1, widestColumn);
    sized.sized = true;
    columnsDirty_ = true;
    markDirty();
}

void Grid::openColumns(const std::set<int>& columns) {
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column)
        columnsDirty_ |= change(columns_[static_cast<std::size_t>(column)].open, columns.contains(column));
}

bool Grid::anyOpen() const {
    return std::ranges::find(columns_, true, &Column::open) != columns_.end();
}

void Grid::setRows(std::vector<Row> rows) {
    rows_ = std::move(rows);
    marksDirty_ |= !changedCells_.empty() || !warnings_.empty();
    changedCells_.clear();
    warnings_.clear();
    moveCurrentRow(std::clamp(currentRow_, rows_.empty() ? none : 0, static_cast<int>(rows_.size()) - 1));
    markRowsDirty();
}

void Grid::addRow(Row row) {
    rows_.push_back(std::move(row));
    markRowsDirty();
}

void Grid::removeRow(int row) {
    rows_.erase(rows_.begin() + row);
    const auto movedUp = [row](Cell cell) { return Cell{cell.row - (cell.row > row ? 1 : 0), cell.column}; };
    std::map<Cell, ChangedBy> changed;
    for (const auto& [cell, who] : changedCells_)
        if (cell.row != row) changed.emplace(movedUp(cell), who);
    std::set<Cell> warnings;
    for (const Cell cell : warnings_)
        if (cell.row != row) warnings.insert(movedUp(cell));
    marksDirty_ |= !changedCells_.empty() || !warnings_.empty();
    changedCells_ = std::move(changed);
    warnings_ = std::move(warnings);
    moveCurrentRow(std::min(currentRow_, static_cast<int>(rows_.size()) - 1));
    markRowsDirty();
}

const std::string& Grid::cell(int row, int column) const {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
}

void Grid::setCell(int row, int column, std::string text) {
    std::string& cell = rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    if (cell == text) return;
    cell = std::move(text);
    changedRows_.insert(row);
    markDirty();
}

ChangedBy Grid::changedBy(Cell cell) const {
    const auto found = changedCells_.find(cell);
    return found == changedCells_.end() ? ChangedBy::nobody : found->second;
}

void Grid::setChangedBy(Cell cell, ChangedBy who) {
    if (changedBy(cell) == who) return;
    if (who == ChangedBy::nobody) {
        changedCells_.erase(cell);
    } else {
        changedCells_[cell] = who;
    }
    marksDirty_ = true;
    markDirty();
}

void Grid::setWarning(Cell cell, bool warns) {
    if (warnings_.contains(cell) == warns) return;
    if (warns) {
        warnings_.insert(cell);
    } else {
        warnings_.erase(cell);
    }
    marksDirty_ = true;
    markDirty();
}

void Grid::setCurrent(int row, int column) {
    const bool inside = row >= 0 && row < static_cast<int>(rows_.size());
    change(currentRow_, inside ? row : none);
    change(currentColumn_, std::clamp(column, 0, std::max(0, static_cast<int>(columns_.size()) - 1)));
    mark_.reset();
    reveal();
}

std::optional<Grid::Block> Grid::block() const {
    if (!mark_) return std::nullopt;
    const auto& [from, to] = *mark_;
    return Block{{std::min(from.row, to.row), std::min(from.column, to.column)},
                 {std::max(from.row, to.row), std::max(from.column, to.column)}};
}

void Grid::extendTo(Cell far) {
    if (currentRow_ == none) return;
    const Cell begin = mark_ ? mark_->first : Cell{currentRow_, currentColumn_};
    const int lastRow = static_cast<int>(rows_.size()) - 1;
    const int lastColumn = static_cast<int>(columns_.size()) - 1;
    mark_ = {begin, {std::clamp(far.row, 0, lastRow), std::clamp(far.column, 0, lastColumn)}};
    reveal();
}

void Grid::markAll() {
    if (rows_.empty() || columns_.empty()) return;
    mark_ = {{0, 0}, {static_cast<int>(rows_.size()) - 1, static_cast<int>(columns_.size()) - 1}};
    markDirty();
}

Button* Grid::pressedBy(Key key) const {
    const auto found = std::ranges::find(buttons_, key, &std::pair<Key, Button*>::first);
    return found == buttons_.end() ? nullptr : found->second;
}

void Grid::showCellEditor(TextBox& box, int row, int column) {
    cellEditor_ = &box;
    editedRow_ = row;
    editedColumn_ = column;
    reveal();
}

void Grid::hideCellEditor() {
    cellEditor_ = nullptr;
    editedRow_ = none;
    markDirty();
}

void Grid::drawn() {
    Control::drawn();
    columnsDirty_ = false;
    rowsDirty_ = false;
    changedRows_.clear();
    marksDirty_ = false;
    reveals_ = false;
}

} // namespace tellurix::ui
