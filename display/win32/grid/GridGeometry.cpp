#include "display/win32/grid/GridGeometry.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace tellurix::windows {

namespace {

/// What is shorter is a date or a code, of which a part means nothing.
bool isName(const ui::Grid::Column& column) {
    return !column.rightAligned && column.width >= 12;
}

} // namespace

int GridGeometry::roomOf(const ui::Grid::Column& column) const {
    // A caption that is longer than what stands below it has to be read as well.
    const int sign = column.order == ui::Grid::Order::none ? 0 : theme_.scaled(14);
    const int caption = column.sized ? 0 : theme_.textSize(column.caption, false, 0, true).cx + sign;
    return std::max(column.width * theme_.characterWidth(), caption) + theme_.textEdges();
}

int GridGeometry::preferredWidth() const {
    int sum = 0;
    for (const auto& column : grid_.columns())
        if (column.visible) sum += roomOf(column);
    return sum;
}

void GridGeometry::fit(int width, int height) {
    windowWidth_ = width;
    windowHeight_ = height;
    widths_.clear();
    int flexible = 0; // how much the texts can give
    int growing = 0;  // what the spare room is shared among
    for (const auto& column : grid_.columns()) {
        widths_.push_back(column.visible ? roomOf(column) : 0);
        if (!column.visible || column.sized) continue;
        growing += widths_.back();
        if (isName(column)) flexible += widths_.back() / 2;
    }
    const int wanted = std::accumulate(widths_.begin(), widths_.end(), 0);
    const int missing = std::clamp(wanted - width, 0, flexible);
    const int spare = std::max(width - wanted, 0);
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        if (!visible(i) || grid_.columns()[i].sized) continue;
        const bool text = isName(grid_.columns()[i]);
        // Rounded so that no column is pushed out by a pixel.
        if (missing > 0 && text) widths_[i] -= (widths_[i] / 2 * missing + flexible - 1) / flexible;
        if (spare > 0) widths_[i] += widths_[i] * spare / growing;
    }
    scrollTo(firstRow_, left_);
}

int GridGeometry::width() const {
    return std::accumulate(widths_.begin(), widths_.end(), 0);
}

int GridGeometry::rowsSeen() const {
    return std::max(windowHeight_ / rowHeight() - 1, 1);
}

bool GridGeometry::scrollTo(int firstRow, int left) {
    const int lastFirst = std::max(static_cast<int>(grid_.rows().size()) - rowsSeen(), 0);
    const int row = std::clamp(firstRow, 0, lastFirst);
    const int x = std::clamp(left, 0, std::max(width() - windowWidth_, 0));
    if (row == firstRow_ && x == left_) return false;
    firstRow_ = row;
    left_ = x;
    return true;
}

bool GridGeometry::reveal(int row, int column) {
    if (row == ui::Grid::none) return false;
    const int first = std::clamp(firstRow_, row - rowsSeen() + 1, row);
    const RECT place = cell(row, column);
    int left = left_;
    if (place.right > windowWidth_) left += place.right - windowWidth_;
    left = std::min<int>(left, place.left + left_);
    return scrollTo(first, left);
}

RECT GridGeometry::cell(int row, int column) const {
    const auto index = std::min(static_cast<std::size_t>(std::max(column, 0)), widths_.size());
    const int x =
        std::accumulate(widths_.begin(), widths_.begin() + static_cast<std::ptrdiff_t>(index), -left_);
    const int y = row < 0 ? 0 : (row - firstRow_ + 1) * rowHeight();
    return {x, y, x + (index < widths_.size() ? widths_[index] : 0), y + rowHeight()};
}

GridGeometry::Place GridGeometry::at(POINT point) const {
    Place found{-1, -1};
    if (point.y >= rowHeight()) {
        const int row = firstRow_ + point.y / rowHeight() - 1;
        if (row < static_cast<int>(grid_.rows().size())) found.row = row;
    }
    int right = -left_;
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        right += widths_[i];
        if (point.x < right) {
            found.column = static_cast<int>(i);
            break;
        }
    }
    return found;
}

int GridGeometry::edgeAt(POINT point) const {
    if (point.y >= rowHeight()) return -1;
    const int reach = theme_.scaled(4);
    int right = -left_;
    int found = -1;
    for (std::size_t i = 0; i < widths_.size(); ++i) {
        right += widths_[i];
        if (visible(i) && std::abs(point.x - right) <= reach) found = static_cast<int>(i);
    }
    return found;
}

void GridGeometry::pull(int column, int width) {
    widths_.at(static_cast<std::size_t>(column)) = std::max(width, theme_.textEdges());
}

int GridGeometry::charactersIn(int width) const {
    return std::max((width - theme_.textEdges()) / theme_.characterWidth(), 1);
}

} // namespace tellurix::windows
