#include "module/ui/controls/Grid.h"

#include "module/base/text.h"

#include <algorithm>

namespace tellurix::ui {

void Grid::markRowsDirty() {
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

void Grid::setRows(std::vector<Row> rows) {
    rows_ = std::move(rows);
    moveCurrentRow(std::clamp(currentRow_, rows_.empty() ? none : 0, static_cast<int>(rows_.size()) - 1));
    markRowsDirty();
}

void Grid::addRow(Row row) {
    rows_.push_back(std::move(row));
    markRowsDirty();
}

void Grid::removeRow(int row) {
    rows_.erase(rows_.begin() + row);
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

void Grid::setCurrent(int row, int column) {
    const bool inside = row >= 0 && row < static_cast<int>(rows_.size());
    change(currentRow_, inside ? row : none);
    change(currentColumn_, std::clamp(column, 0, std::max(0, static_cast<int>(columns_.size()) - 1)));
    reveal();
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
    reveals_ = false;
}

} // namespace tellurix::ui
