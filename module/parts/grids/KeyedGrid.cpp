#include "module/parts/grids/KeyedGrid.h"

#include "module/base/date_format.h"
#include "module/base/field_text.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/ui/Form.h"
#include "module/ui/input/grid_text.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <utility>

namespace tellurix::parts {

namespace {

/// Which of two values of one column comes first; a value that is missing comes before all others.
bool lessThan(const base::Value& left, const base::Value& right) {
    const auto rank = [](const base::Value& value) {
        return std::holds_alternative<base::Null>(value) ? 0 : 1;
    };
    if (rank(left) != rank(right) || rank(left) == 0) return rank(left) < rank(right);
    const auto* text = std::get_if<std::string>(&left);
    const auto* otherText = std::get_if<std::string>(&right);
    if (text != nullptr && otherText != nullptr) return base::toUpper(*text) < base::toUpper(*otherText);
    const auto* moment = std::get_if<base::DateTime>(&left);
    const auto* otherMoment = std::get_if<base::DateTime>(&right);
    if (moment != nullptr && otherMoment != nullptr) return *moment < *otherMoment;
    return base::numberIn(left) < base::numberIn(right);
}

} // namespace

void KeyedGrid::setColumns(std::vector<Column> columns) {
    columns_ = std::move(columns);
    std::vector<ui::Grid::Column> shown;
    for (const Column& column : columns_)
        shown.push_back({.caption = column.caption,
                         .width = column.width,
                         .rightAligned = column.rightAligned,
                         .visible = !column.hidden,
                         .remark = column.remark,
                         .narrow = column.narrow,
                         .toolTip = column.toolTip});
    grid_.setColumns(std::move(shown));
    drawOpenColumns();
    if (std::ranges::find(columns_, true, &Column::sorts) == columns_.end()) return;
    grid_.onLayoutRestored = [this] { takeOrder(); };
    grid_.onHeadingClick = [this](int column) {
        if (!columns_.at(static_cast<std::size_t>(column)).sorts) return;
        const auto now = sorting();
        sortBy(column, now && now->column == column && !now->descending);
    };
}

void KeyedGrid::openCells(bool open) {
    open_ = open;
    drawOpenColumns();
}

void KeyedGrid::drawOpenColumns() {
    std::set<int> open;
    for (int column = 0; open_ && column < static_cast<int>(columns_.size()); ++column)
        if (editable(column)) open.insert(column);
    grid_.openColumns(open);
}

void KeyedGrid::sortBy(int column, bool descending) {
    grid_.markOrder(column, descending ? ui::Grid::Order::descending : ui::Grid::Order::ascending);
    drawRows(currentKey());
}

std::optional<KeyedGrid::Sorting> KeyedGrid::sorting() const {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const ui::Grid::Order order = grid_.columns().at(i).order;
        if (columns_[i].sorts && order != ui::Grid::Order::none)
            return Sorting{static_cast<int>(i), order == ui::Grid::Order::descending};
    }
    return std::nullopt;
}

bool KeyedGrid::comesBefore(const Sorting& sorting, std::size_t row, std::size_t other) {
    const Column& column = columns_[static_cast<std::size_t>(sorting.column)];
    const auto [first, second] = sorting.descending ? std::pair{other, row} : std::pair{row, other};
    if (column.shown || column.field.empty())
        return base::toUpper(cellText(rows_[first], column)) < base::toUpper(cellText(rows_[second], column));
    return lessThan(rows_[first].field(column.field), rows_[second].field(column.field));
}

std::string KeyedGrid::cellText(KeyedRow& row, const Column& column) const {
    if (column.shown) return column.shown(row);
    // A row that was only just made has no fields to show.
    if (column.field.empty() || row.fieldCount() == 0) return {};
    const std::size_t field = row.fieldIndex(column.field);
    const base::Value value = row.field(field);
    if (const auto* moment = std::get_if<base::DateTime>(&value))
        return column.mask.empty() ? base::dateText(value) : base::formatDate(*moment, column.mask, locale_);
    return column.mask.empty() ? row.text(field) : base::numberText(value, column.mask, locale_);
}

ui::Grid::Row KeyedGrid::cellsOf(KeyedRow& row) const {
    ui::Grid::Row cells;
    for (const Column& column : columns_)
        cells.push_back(cellText(row, column));
    return cells;
}

void KeyedGrid::drawRow(int row) {
    KeyedRow& read = this->row(row);
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (columns_[column].shown || !columns_[column].field.empty())
            grid_.setCell(row, static_cast<int>(column), cellText(read, columns_[column]));
    }
    drawMarks(row);
}

void KeyedGrid::drawMarks(int row) {
    KeyedRow& read = this->row(row);
    if (read.fieldCount() == 0) return;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const ui::Grid::Cell cell{row, static_cast<int>(column)};
        if (columns_[column].warns) grid_.setWarning(cell, columns_[column].warns(read));
        if (columns_[column].shown || columns_[column].field.empty()) continue;
        grid_.setChangedBy(cell, read.changedBy(columns_[column].field));
    }
}

void KeyedGrid::show(std::vector<KeyedRow> rows) {
    const auto current = currentKey();
    rows_ = std::move(rows);
    readAt_.resize(rows_.size());
    std::iota(readAt_.begin(), readAt_.end(), std::size_t{0});
    drawRows(current);
}

void KeyedGrid::showOnly(std::function<bool(KeyedRow&)> condition) {
    const auto current = currentKey();
    condition_ = std::move(condition);
    drawRows(current);
}

void KeyedGrid::orderRows() {
    const auto by = sorting();
    if (!by) return;
    std::vector<std::size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    // What is equal stands as it was read.
    std::ranges::sort(order, {}, [this](std::size_t row) { return readAt_[row]; });
    std::ranges::stable_sort(
        order, [this, &by](std::size_t row, std::size_t other) { return comesBefore(*by, row, other); });
    std::vector<KeyedRow> rows;
    std::vector<std::size_t> readAt;
    for (const std::size_t row : order) {
        rows.push_back(std::move(rows_[row]));
        readAt.push_back(readAt_[row]);
    }
    rows_ = std::move(rows);
    readAt_ = std::move(readAt);
}

void KeyedGrid::drawRows(std::optional<std::int64_t> current) {
    orderRows();
    seen_.clear();
    std::vector<ui::Grid::Row> cells;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (!condition_ || condition_(rows_[i])) seen_.push_back(i);
    }
    for (const std::size_t row : seen_)
        cells.push_back(cellsOf(rows_[row]));
    grid_.setRows(std::move(cells));
    for (int row = 0; row < rowCount(); ++row)
        drawMarks(row);
    tellTouched();
    if (const auto found = current ? find(*current) : std::nullopt) {
        grid_.setCurrent(*found, grid_.currentColumn());
    } else if (grid_.currentRow() == ui::Grid::none && rowCount() > 0) {
        grid_.setCurrent(0);
    }
}

void KeyedGrid::redraw() {
    for (int row = 0; row < rowCount(); ++row)
        drawRow(row);
    tellTouched();
}

std::optional<std::int64_t> KeyedGrid::currentKey() const {
    const int row = grid_.currentRow();
    return row == ui::Grid::none || row >= rowCount() ? std::nullopt : std::optional{keyOf(row)};
}

std::optional<int> KeyedGrid::find(std::int64_t key) const {
    for (int row = 0; row < rowCount(); ++row)
        if (keyOf(row) == key) return row;
    return std::nullopt;
}

bool KeyedGrid::select(std::int64_t key) {
    const auto row = find(key);
    if (row) grid_.setCurrent(*row);
    return row.has_value();
}

void KeyedGrid::replace(int row, KeyedRow read) {
    this->row(row) = std::move(read);
    drawRow(row);
}

void KeyedGrid::add(std::int64_t key) {
    seen_.push_back(rows_.size());
    readAt_.push_back(rows_.size());
    rows_.emplace_back(key);
    grid_.addRow(ui::Grid::Row(columns_.size()));
    grid_.setCurrent(rowCount() - 1);
}

void KeyedGrid::swap(int row, int other) {
    std::swap(this->row(row), this->row(other));
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column) {
        std::string cell = grid_.cell(row, column);
        grid_.setCell(row, column, grid_.cell(other, column));
        grid_.setCell(other, column, std::move(cell));
    }
    drawMarks(row);
    drawMarks(other);
}

void KeyedGrid::setValue(int row, std::string_view field, base::Value value) {
    this->row(row).set(field, std::move(value));
    drawRow(row);
    tellTouched();
}

void KeyedGrid::markFromOthers(std::int64_t key, std::string_view field) {
    const auto row = std::ranges::find(rows_, key, &KeyedRow::key);
    if (row == rows_.end()) return;
    row->setChangedBy(field, ui::ChangedBy::colleague);
    if (const auto seen = find(key)) drawMarks(*seen);
}

int KeyedGrid::touchedRows() const {
    return static_cast<int>(std::ranges::count_if(rows_, [](const KeyedRow& row) { return row.touched(); }));
}

void KeyedGrid::tellTouched() {
    const int touched = touchedRows();
    if (touched == std::exchange(toldTouched_, touched)) return;
    const auto words = [this](base::OwnText text, const std::vector<std::string>& values = {}) {
        return base::ownText(text, grid_.form().language(), values);
    };
    grid_.form().status().keep(touched == 0   ? std::string{}
                               : touched == 1 ? words(base::OwnText::oneLineEdited)
                                              : words(base::OwnText::linesEdited, {std::to_string(touched)}));
}

void KeyedGrid::copyField(std::string_view from, std::string_view to) {
    for (KeyedRow& row : rows_)
        if (const base::Value value = row.field(from); value != row.field(to)) row.set(to, value);
    redraw();
}

base::Decimal KeyedGrid::sum(std::string_view field) {
    base::Decimal sum;
    for (KeyedRow& row : rows_)
        if (const auto number = base::numberIn(row.field(field))) sum = sum + *number;
    return sum;
}

std::string KeyedGrid::text(std::span<const TextColumn> columns) {
    std::string text;
    std::vector<Column> shown;
    for (const TextColumn& column : columns) {
        text += (shown.empty() ? "" : "\t") + column.heading;
        const auto own = std::ranges::find(columns_, column.field, &Column::field);
        shown.push_back(own != columns_.end() ? *own : Column{.field = column.field});
    }
    for (KeyedRow& row : rows_) {
        for (std::size_t column = 0; column < shown.size(); ++column)
            text += (column == 0 ? "\r\n" : "\t") + ui::oneCell(cellText(row, shown[column]));
    }
    return text;
}

} // namespace tellurix::parts
