#include "display/win32/grid/grid_painting.h"

#include "com/automation/wide.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

constexpr const char* tick = "✓";

class Painter {
public:
    Painter(HDC dc, const ui::Grid& grid, const GridGeometry& geometry, const Theme& theme, bool focused)
        : dc_(dc), grid_(grid), geometry_(geometry), theme_(theme), focused_(focused) {}

    void paint(const RECT& area) {
        FillRect(dc_, &area, GetSysColorBrush(grid_.usable() ? COLOR_WINDOW : COLOR_3DFACE));
        SetBkMode(dc_, TRANSPARENT);
        const Selected withFont{dc_, theme_.font()};
        const int from =
            std::max(geometry_.firstRow() + static_cast<int>(area.top) / geometry_.rowHeight() - 1,
                     geometry_.firstRow());
        const int to = std::min(geometry_.firstRow() + static_cast<int>(area.bottom) / geometry_.rowHeight(),
                                static_cast<int>(grid_.rows().size()));
        for (int row = from; row < to; ++row)
            paintRow(row, area);
        paintHeader(area);
    }

private:
    void paintHeader(const RECT& area) {
        RECT bar = geometry_.cell(-1, 0);
        bar.left = 0;
        bar.right = area.right;
        FillRect(dc_, &bar, GetSysColorBrush(COLOR_3DFACE));
        const Selected bold{dc_, theme_.boldFont()};
        SetTextColor(dc_, GetSysColor(COLOR_BTNTEXT));
        for (int column = 0; column < columns(); ++column) {
            const RECT cell = geometry_.cell(-1, column);
            if (cell.left == cell.right) continue;
            paintText(cell, columnAt(column).caption, columnAt(column).rightAligned);
            paintOrder(cell, columnAt(column).order);
            line({cell.right - 1, cell.top + 2, cell.right, cell.bottom - 2}, COLOR_3DSHADOW);
        }
        line({0, bar.bottom - 1, area.right, bar.bottom}, COLOR_3DSHADOW);
    }

    void paintRow(int row, const RECT& area) {
        const bool current = row == grid_.currentRow();
        const RECT first = geometry_.cell(row, 0);
        const RECT whole{0, first.top, std::max<LONG>(geometry_.width() - geometry_.left(), 0), first.bottom};
        if (current) FillRect(dc_, &whole, GetSysColorBrush(focused_ ? COLOR_HIGHLIGHT : COLOR_3DFACE));
        const bool inverse = current && focused_;
        SetTextColor(dc_, GetSysColor(!grid_.usable() ? COLOR_GRAYTEXT
                                      : inverse       ? COLOR_HIGHLIGHTTEXT
                                      : current       ? COLOR_BTNTEXT
                                                      : COLOR_WINDOWTEXT));
        const COLORREF ink = GetTextColor(dc_);
        const auto& texts = grid_.rows()[static_cast<std::size_t>(row)];
        for (int column = 0; column < columns(); ++column) {
            const RECT cell = geometry_.cell(row, column);
            if (cell.left == cell.right || cell.right < area.left || cell.left > area.right) continue;
            const bool marked = isMarked({row, column});
            if (marked) FillRect(dc_, &cell, GetSysColorBrush(COLOR_HIGHLIGHT));
            const bool warns = !inverse && grid_.warnings().contains({row, column});
            SetTextColor(dc_, marked  ? GetSysColor(COLOR_HIGHLIGHTTEXT)
                              : warns ? theme_.warningColour()
                                      : ink);
            const auto index = static_cast<std::size_t>(column);
            if (index < texts.size()) paintText(cell, texts[index], columnAt(column).rightAligned);
            line({cell.right - 1, cell.top, cell.right, cell.bottom}, COLOR_3DLIGHT);
            if (inverse && column == grid_.currentColumn()) paintCurrentCell(cell);
        }
        line({whole.left, whole.bottom - 1, whole.right, whole.bottom}, COLOR_3DLIGHT);
    }

    bool isMarked(ui::Grid::Cell cell) const {
        const auto block = grid_.block();
        return block && cell.row >= block->first.row && cell.row <= block->last.row &&
               cell.column >= block->first.column && cell.column <= block->last.column;
    }

    /// A box to tick, as the system draws it.
    void paintTickBox(RECT cell, bool ticked) {
        const int size = theme_.scaled(13);
        cell.left += theme_.scaled(4);
        cell.top = (cell.top + cell.bottom - size) / 2;
        cell.right = cell.left + size;
        cell.bottom = cell.top + size;
        DrawFrameControl(dc_, &cell, DFC_BUTTON, DFCS_BUTTONCHECK | (ticked ? DFCS_CHECKED : 0U));
    }

    void paintText(RECT cell, const std::string& text, bool rightAligned) {
        if (text == ui::Grid::ticked || text == ui::Grid::unticked)
            return paintTickBox(cell, text == ui::Grid::ticked);
        cell.left += theme_.scaled(4);
        cell.right -= theme_.scaled(5);
        // The system's fonts for windows have no tick.
        const bool isTick = text == tick;
        const Selected withFont{dc_, isTick ? theme_.signFont() : GetCurrentObject(dc_, OBJ_FONT)};
        const std::wstring wide = isTick ? L"a" : widen(text);
        DrawTextW(dc_, wide.c_str(), static_cast<int>(wide.size()), &cell,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS |
                      (rightAligned ? DT_RIGHT : DT_LEFT));
    }

    void paintOrder(RECT cell, ui::Grid::Order order) {
        if (order == ui::Grid::Order::none) return;
        cell.right -= theme_.scaled(2);
        // The font of signs has its arrows in the places of two digits.
        const Selected withFont{dc_, theme_.signFont()};
        DrawTextW(dc_, order == ui::Grid::Order::ascending ? L"5" : L"6", 1, &cell,
                  DT_SINGLELINE | DT_VCENTER | DT_RIGHT);
    }

    void paintCurrentCell(RECT cell) {
        cell.right -= 1;
        cell.bottom -= 1;
        FrameRect(dc_, &cell, GetSysColorBrush(COLOR_WINDOWTEXT));
        InflateRect(&cell, -1, -1);
        FrameRect(dc_, &cell, GetSysColorBrush(COLOR_WINDOW));
    }

    void line(const RECT& place, int colour) { FillRect(dc_, &place, GetSysColorBrush(colour)); }
    int columns() const { return static_cast<int>(grid_.columns().size()); }
    const ui::Grid::Column& columnAt(int column) const {
        return grid_.columns()[static_cast<std::size_t>(column)];
    }

    HDC dc_;
    const ui::Grid& grid_;
    const GridGeometry& geometry_;
    const Theme& theme_;
    bool focused_;
};

} // namespace

void paintGrid(HDC dc, const RECT& area, const ui::Grid& grid, const GridGeometry& geometry,
               const Theme& theme, bool focused) {
    Painter{dc, grid, geometry, theme, focused}.paint(area);
}

} // namespace tellurix::windows
