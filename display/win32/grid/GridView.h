#pragma once

#include "display/win32/controls/ControlView.h"
#include "display/win32/grid/GridGeometry.h"
#include "display/win32/keys/Wheel.h"

namespace tellurix::windows {

/// What test drivers can ask a grid's window, by registered messages. They write to memory of the process,
/// and anybody can send a message; so they are answered only while the process itself has the local atom
/// "Tellurix.TestDriver", which no other one can give it.
/// "Tellurix.CellText": MAKEWPARAM(row, column), pointer to a buffer of 256 characters that gets the
/// cell's text (row 0xFFFF is the header); answers 1, or 0 for a cell that does not exist.
/// "Tellurix.CellPlace": MAKEWPARAM(row, column), pointer to a RECT that gets the cell's place in the
/// window's client area; the cell is scrolled into view first.
struct GridMessages {
    UINT cellText = RegisterWindowMessageW(L"Tellurix.CellText");
    UINT cellPlace = RegisterWindowMessageW(L"Tellurix.CellPlace");
};
const GridMessages& gridMessages();

/// A table of texts with a current cell, in a window class of its own ("TellurixGrid"): the native
/// list has no current cell. It draws the rows that are seen. Its window text, which screen readers
/// say, is its name, and the current cell with its row and column.
class GridView final : public ControlView {
public:
    GridView(ViewHost& host, ui::Grid& grid);

    Room measure() const override;
    bool fills() const override { return true; }
    void placeControl(const RECT& rect) override;
    /// Puts the box that edits a cell over that cell.
    void placeEditor();
    int columnWidth() const override;

private:
    std::string tip() const override;
    void draw() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void paint();
    void fit();
    void showScrollBars();
    void showCurrentCell();
    void pressed(POINT point, bool twice, bool extends);
    /// The native keys of a grid: copying and pasting. @return whether it was one
    bool clipboardKey(WPARAM code);
    void copy(bool withHeadings);
    void paste();
    /// The user has taken the edge of a column, and moves it.
    bool takeEdge(POINT point, bool twice);
    void pullEdge(POINT point);
    /// The pointer is there: each column may have a tip of its own.
    void pointAt(POINT point);
    void leaveEdge();
    void scrollBar(int bar, WORD request);
    /// @return false when there is nothing left to scroll to
    bool wheel(UINT message, WPARAM wParam);
    bool scrollByUser(int firstRow, int left);
    LRESULT answerCellText(int row, int column, wchar_t* text) const;
    LRESULT answerCellPlace(int row, int column, RECT* place);

    ui::Grid& grid_;
    GridGeometry geometry_;
    Wheel wheel_;
    int pulled_ = -1;  ///< the column whose edge the user holds
    int pointed_ = -1; ///< the column that the pointer is over
};

} // namespace tellurix::windows
