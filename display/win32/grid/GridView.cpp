#include "display/win32/grid/GridView.h"

#include "com/automation/wide.h"
#include "display/win32/grid/grid_painting.h"
#include "display/win32/native/clipboard.h"
#include "module/ui/controls/control_caption.h"
#include "module/ui/input/grid_text.h"

#include <algorithm>
#include <utility>

namespace tellurix::windows {

namespace {

constexpr std::size_t cellTextSize = 256;
constexpr int headerRow = 0xFFFF;

const wchar_t* gridClass() {
    static const WindowClass made{L"TellurixGrid", DefWindowProcW, CS_DBLCLKS, -1};
    return made.name();
}

POINT pointOf(LPARAM lParam) {
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

} // namespace

const GridMessages& gridMessages() {
    static const GridMessages messages;
    return messages;
}

GridView::GridView(ViewHost& host, ui::Grid& grid)
    : ControlView(host, grid), grid_(grid), geometry_(grid, host.theme()) {
    create(gridClass(), WS_TABSTOP | WS_VSCROLL | WS_HSCROLL, WS_EX_CLIENTEDGE);
}

Room GridView::measure() const {
    const int frame = theme().scaled(4);
    const int width = geometry_.preferredWidth() + GetSystemMetrics(SM_CXVSCROLL) + frame;
    const int height = (grid_.visibleRows() + 1) * geometry_.rowHeight() + frame;
    return {{std::min(width, 24 * theme().characterWidth()), width},
            {std::min(height, 4 * geometry_.rowHeight() + frame), height}};
}

void GridView::placeControl(const RECT& rect) {
    if (isAt(rect)) return;
    ControlView::placeControl(rect);
    fit();
    if (geometry_.reveal(grid_.farEnd().row, grid_.farEnd().column)) showScrollBars();
    placeEditor();
}

void GridView::fit() {
    // Which scroll bars there are depends on the room, and the room on the scroll bars: one of them can
    // bring the other one.
    RECT fitted{};
    for (int pass = 0; pass < 3; ++pass) {
        RECT client{};
        GetClientRect(handle(), &client);
        if (pass > 0 && EqualRect(&client, &fitted)) break;
        fitted = client;
        geometry_.fit(client.right, client.bottom);
        showScrollBars();
    }
    InvalidateRect(handle(), nullptr, FALSE);
}

void GridView::showScrollBars() {
    SCROLLINFO vertical{};
    vertical.cbSize = sizeof vertical;
    vertical.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    vertical.nMax = std::max(static_cast<int>(grid_.rows().size()) - 1, 0);
    vertical.nPage = static_cast<UINT>(geometry_.rowsSeen());
    vertical.nPos = geometry_.firstRow();
    SetScrollInfo(handle(), SB_VERT, &vertical, TRUE);
    RECT client{};
    GetClientRect(handle(), &client);
    SCROLLINFO horizontal = vertical;
    horizontal.nMax = std::max(geometry_.width() - 1, 0);
    horizontal.nPage = static_cast<UINT>(client.right);
    horizontal.nPos = geometry_.left();
    SetScrollInfo(handle(), SB_HORZ, &horizontal, TRUE);
}

void GridView::draw() {
    if (grid_.columnsDirty() || grid_.rowsDirty() || isNew()) fit();
    const bool reveals = grid_.reveals() || isNew();
    if (reveals && geometry_.reveal(grid_.farEnd().row, grid_.farEnd().column)) showScrollBars();
    showCurrentCell();
    placeEditor();
    InvalidateRect(handle(), nullptr, FALSE);
}

void GridView::showCurrentCell() {
    std::string text = ui::spokenName(grid_);
    const auto column = static_cast<std::size_t>(grid_.currentColumn());
    if (grid_.currentRow() != ui::Grid::none && column < grid_.columns().size()) {
        const auto& row = grid_.rows()[static_cast<std::size_t>(grid_.currentRow())];
        text += " " + std::to_string(grid_.currentRow() + 1) + "/" + std::to_string(grid_.rows().size()) +
                ", " + grid_.columns()[column].caption + ": " + (column < row.size() ? row[column] : "");
    }
    showText(widen(text));
}

void GridView::placeEditor() {
    const ui::TextBox* box = grid_.cellEditor();
    if (box == nullptr) return;
    RECT cell = geometry_.cell(grid_.editedRow(), grid_.editedColumn());
    RECT client{};
    GetClientRect(handle(), &client);
    IntersectRect(&cell, &cell, &client);
    for (RECT* place : {&cell, &client})
        MapWindowPoints(handle(), host().window(), reinterpret_cast<POINT*>(place), 2);
    host().viewOf(*box).placeOver(cell, client);
}

void GridView::paint() {
    PAINTSTRUCT drawing{};
    HDC dc = BeginPaint(handle(), &drawing);
    RECT client{};
    GetClientRect(handle(), &client);
    // Drawn aside and shown at once, so that nothing flickers.
    HDC aside = CreateCompatibleDC(dc);
    {
        const GdiObject<HBITMAP> bitmap{CreateCompatibleBitmap(dc, client.right, client.bottom)};
        const Selected onto{aside, HBITMAP{bitmap}};
        const RECT area{0, 0, client.right, drawing.rcPaint.bottom};
        paintGrid(aside, area, grid_, geometry_, theme(), GetFocus() == handle());
        BitBlt(dc, drawing.rcPaint.left, drawing.rcPaint.top, widthOf(drawing.rcPaint),
               heightOf(drawing.rcPaint), aside, drawing.rcPaint.left, drawing.rcPaint.top, SRCCOPY);
    }
    DeleteDC(aside);
    EndPaint(handle(), &drawing);
}

bool GridView::takeEdge(POINT point, bool twice) {
    const int column = geometry_.edgeAt(point);
    if (column < 0) return false;
    if (twice) {
        tell(ui::ColumnSizedEvent{&grid_, column, ui::Grid::fitting});
        return true;
    }
    pulled_ = column;
    SetCapture(handle());
    return true;
}

void GridView::pullEdge(POINT point) {
    geometry_.pull(pulled_, point.x - static_cast<int>(geometry_.cell(-1, pulled_).left));
    InvalidateRect(handle(), nullptr, FALSE);
}

void GridView::pointAt(POINT point) {
    const int column = geometry_.at(point).column;
    if (std::exchange(pointed_, column) != column) host().setToolTip(handle(), tip());
}

std::string GridView::tip() const {
    const bool overColumn = pointed_ >= 0 && pointed_ < static_cast<int>(grid_.columns().size());
    const std::string own = overColumn ? grid_.columns()[static_cast<std::size_t>(pointed_)].toolTip : "";
    return own.empty() ? ControlView::tip() : own;
}

void GridView::leaveEdge() {
    const RECT cell = geometry_.cell(-1, pulled_);
    const int column = std::exchange(pulled_, -1);
    fit();
    const RECT before = geometry_.cell(-1, column);
    if (widthOf(cell) == widthOf(before)) return;
    tell(ui::ColumnSizedEvent{&grid_, column, geometry_.charactersIn(widthOf(cell))});
}

int GridView::columnWidth() const {
    return geometry_.charactersIn(widthOf(geometry_.cell(-1, grid_.currentColumn())));
}

bool GridView::clipboardKey(WPARAM code) {
    const auto held = [](int key) { return (GetKeyState(key) & 0x8000) != 0; };
    if (!held(VK_CONTROL) || held(VK_MENU) || (code != 'C' && code != 'V')) return false;
    code == 'C' ? copy(held(VK_SHIFT)) : paste();
    return true;
}

void GridView::copy(bool withHeadings) {
    const std::string text = ui::copiedCells(grid_, withHeadings);
    if (!text.empty()) setClipboardText(handle(), widen(text));
}

void GridView::paste() {
    const std::string text = narrow(clipboardText(handle()));
    if (!text.empty()) tell(ui::PasteEvent{&grid_, text});
}

void GridView::pressed(POINT point, bool twice, bool extends) {
    if (takeEdge(point, twice)) return;
    const GridGeometry::Place cell = geometry_.at(point);
    if (grid_.onHeadingClick && point.y < geometry_.rowHeight() && cell.column >= 0) {
        tell(ui::HeadingEvent{&grid_, cell.column});
        return;
    }
    if (cell.row < 0 || cell.column < 0) {
        tell(ui::FocusEvent{&grid_});
        return;
    }
    tell(ui::SelectEvent{&grid_, cell.row, cell.column, extends});
    if (twice) tell(ui::DoubleClickEvent{&grid_});
}

void GridView::scrollBar(int bar, WORD request) {
    SCROLLINFO now{};
    now.cbSize = sizeof now;
    now.fMask = SIF_ALL;
    GetScrollInfo(handle(), bar, &now);
    const int line = bar == SB_VERT ? 1 : theme().scaled(20);
    const int page = std::max(static_cast<int>(now.nPage) - line, line);
    int to = now.nPos;
    switch (request) {
    case SB_LINEUP:
        to -= line;
        break;
    case SB_LINEDOWN:
        to += line;
        break;
    case SB_PAGEUP:
        to -= page;
        break;
    case SB_PAGEDOWN:
        to += page;
        break;
    case SB_TOP:
        to = now.nMin;
        break;
    case SB_BOTTOM:
        to = now.nMax;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        to = now.nTrackPos;
        break;
    default:
        return;
    }
    if (bar == SB_VERT) {
        scrollByUser(to, geometry_.left());
    } else {
        scrollByUser(geometry_.firstRow(), to);
    }
}

bool GridView::wheel(UINT message, WPARAM wParam) {
    RECT client{};
    GetClientRect(handle(), &client);
    const Wheel::Turn turn = wheel_.turned(message, wParam, {1, geometry_.rowsSeen()},
                                           {theme().characterWidth(), static_cast<int>(client.right)});
    if (turn.units == 0) return true;
    return scrollByUser(geometry_.firstRow() + (turn.across ? 0 : turn.units),
                        geometry_.left() + (turn.across ? turn.units : 0));
}

bool GridView::scrollByUser(int firstRow, int left) {
    if (!geometry_.scrollTo(firstRow, left)) return false;
    showScrollBars();
    placeEditor();
    InvalidateRect(handle(), nullptr, FALSE);
    if (grid_.onScroll) tell(ui::ScrollEvent{&grid_});
    return true;
}

LRESULT GridView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        pressed(pointOf(lParam), message == WM_LBUTTONDBLCLK, (wParam & MK_SHIFT) != 0);
        return 0;
    case WM_MOUSEMOVE:
        pulled_ >= 0 ? pullEdge(pointOf(lParam)) : pointAt(pointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        if (pulled_ >= 0) ReleaseCapture();
        return 0;
    case WM_CAPTURECHANGED:
        if (pulled_ >= 0) leaveEdge();
        return 0;
    case WM_SETCURSOR: {
        POINT point{};
        GetCursorPos(&point);
        ScreenToClient(handle(), &point);
        if (geometry_.edgeAt(point) < 0) break;
        SetCursor(LoadCursorW(nullptr, IDC_SIZEWE));
        return TRUE;
    }
    case WM_VSCROLL:
        scrollBar(SB_VERT, LOWORD(wParam));
        return 0;
    case WM_HSCROLL:
        scrollBar(SB_HORZ, LOWORD(wParam));
        return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        // At its end the window around it goes on.
        return wheel(message, wParam) ? 0 : SendMessageW(host().window(), message, wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
        InvalidateRect(handle(), nullptr, FALSE);
        return 0;
    case WM_KEYDOWN:
        if (clipboardKey(wParam)) return 0;
        break;
    case WM_COPY:
        copy(false);
        return 0;
    case WM_PASTE:
        paste();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS;
    default:
        break;
    }
    const bool asked = message == gridMessages().cellText || message == gridMessages().cellPlace;
    if (!asked) return native(message, wParam, lParam);
    if (FindAtomW(L"Tellurix.TestDriver") == 0) return 0;
    if (message == gridMessages().cellText)
        return answerCellText(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<wchar_t*>(lParam));
    return answerCellPlace(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<RECT*>(lParam));
}

LRESULT GridView::answerCellText(int row, int column, wchar_t* text) const {
    const auto index = static_cast<std::size_t>(column);
    if (index >= grid_.columns().size()) return 0;
    if (row != headerRow && row >= static_cast<int>(grid_.rows().size())) return 0;
    const std::string& cell = row == headerRow ? grid_.columns()[index].caption : grid_.cell(row, column);
    const std::wstring wide = widen(cell).substr(0, cellTextSize - 1);
    text[wide.copy(text, wide.size())] = L'\0';
    return 1;
}

LRESULT GridView::answerCellPlace(int row, int column, RECT* place) {
    if (row >= static_cast<int>(grid_.rows().size())) return 0;
    if (geometry_.reveal(row, column)) {
        showScrollBars();
        InvalidateRect(handle(), nullptr, FALSE);
    }
    *place = geometry_.cell(row, column);
    return 1;
}

} // namespace tellurix::windows
