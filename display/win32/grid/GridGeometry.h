#pragma once

#include "display/win32/native/Theme.h"
#include "module/ui/controls/Grid.h"

#include <vector>

namespace tellurix::windows {

/// Where the cells of a grid are in its window: the widths of the columns, how far it is scrolled.
/// The header row stays at the top.
class GridGeometry {
public:
    GridGeometry(const ui::Grid& grid, const Theme& theme) : grid_(grid), theme_(theme) {}

    /// Fits the columns into the window: where room is short, long texts give way before numbers and
    /// dates, because half a name can still be recognised.
    void fit(int width, int height);

    int rowHeight() const { return theme_.textHeight() + theme_.scaled(6); }
    /// How many rows are seen whole.
    int rowsSeen() const;
    /// Width of all columns together.
    int width() const;
    int preferredWidth() const;

    int firstRow() const { return firstRow_; }
    int left() const { return left_; }
    /// @return whether that is another place than before
    bool scrollTo(int firstRow, int left);
    /// Scrolls as little as needed to show a cell whole. @return whether it had to
    bool reveal(int row, int column);

    /// A cell in the window, also one that is scrolled out of it. Row -1 is the header.
    RECT cell(int row, int column) const;
    struct Place {
        int row;
        int column;
    };
    /// The cell at a point; row or column are -1 outside the cells.
    Place at(POINT point) const;
    /// The column whose right edge in the header row is at a point, -1 for none.
    int edgeAt(POINT point) const;
    /// Shows a column as wide as that, in pixels, until everything is fitted again.
    void pull(int column, int width);
    /// A column's width in average characters, if it were that wide in pixels.
    int charactersIn(int width) const;

private:
    bool visible(std::size_t column) const { return grid_.columns()[column].visible; }
    int roomOf(const ui::Grid::Column& column) const;

    const ui::Grid& grid_;
    const Theme& theme_;
    std::vector<int> widths_; ///< 0 for a column that is not shown
    int windowWidth_ = 0;
    int windowHeight_ = 0;
    int firstRow_ = 0;
    int left_ = 0;
};

} // namespace tellurix::windows
