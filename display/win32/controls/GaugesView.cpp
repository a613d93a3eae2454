#include "display/win32/controls/GaugesView.h"

#include "com/automation/wide.h"

#include <algorithm>

namespace tellurix::windows {

GaugesView::GaugesView(ViewHost& host, ui::Gauges& gauges) : PaintedView(host, gauges), gauges_(gauges) {
    create(L"STATIC", SS_NOPREFIX);
}

Room GaugesView::measure() const {
    const auto lines = static_cast<int>(gauges_.gauges().size());
    int figures = 0;
    for (const int width : figureWidths())
        figures += width;
    return {{figures + theme().scaled(80), figures + theme().scaled(160)},
            Extent::fixed(lineHeight() + lines * (lineHeight() + 2 * barHeight()))};
}

std::vector<int> GaugesView::figureWidths() const {
    std::vector<int> widths;
    const auto widen = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 1; i < cells.size(); ++i) {
            if (widths.size() < i) widths.push_back(0);
            widths[i - 1] = std::max(widths[i - 1], static_cast<int>(theme().textSize(cells[i], false).cx) +
                                                        theme().textEdges());
        }
    };
    widen(gauges_.headings());
    for (const auto& gauge : gauges_.gauges())
        widen(gauge.cells);
    return widths;
}

void GaugesView::draw() {
    std::string words;
    const auto add = [&words](const std::vector<std::string>& cells) {
        for (const std::string& cell : cells)
            words += cell + (&cell == &cells.back() ? "\n" : ", ");
    };
    add(gauges_.headings());
    for (const auto& gauge : gauges_.gauges())
        add(gauge.cells);
    showText(widen(words));
    InvalidateRect(handle(), nullptr, FALSE);
}

void GaugesView::paint(HDC dc, const RECT& all) const {
    FillRect(dc, &all, background());
    const Selected withFont{dc, theme().font()};
    colour(dc);
    SetBkMode(dc, TRANSPARENT);
    RECT line{all.left, all.top, all.right, all.top + lineHeight()};
    const std::vector<int> widths = figureWidths();
    paintCells(dc, line, widths, gauges_.headings(), false);
    for (const auto& gauge : gauges_.gauges()) {
        OffsetRect(&line, 0, heightOf(line));
        const RECT edge{line.left, line.top, line.right, line.top + 1};
        FillRect(dc, &edge, GetSysColorBrush(COLOR_3DLIGHT));
        paintCells(dc, line, widths, gauge.cells, gauge.warns);
        paintBar(dc, {line.left, line.bottom, line.right, line.bottom + barHeight()}, gauge);
        OffsetRect(&line, 0, 2 * barHeight());
    }
}

void GaugesView::paintCells(HDC dc, const RECT& line, const std::vector<int>& widths,
                            const std::vector<std::string>& cells, bool warns) const {
    RECT cell = line;
    const auto write = [&](const std::string& text, UINT align) {
        const std::wstring wide = widen(text);
        DrawTextW(dc, wide.c_str(), static_cast<int>(wide.size()), &cell,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | align);
    };
    for (std::size_t i = cells.size(); i-- > 1;) {
        cell.left = cell.right - widths[i - 1];
        const bool tooMuch = warns && i + 1 == cells.size();
        const Selected font{dc, tooMuch ? theme().boldFont() : theme().font()};
        SetTextColor(dc, tooMuch           ? theme().warningColour()
                         : gauges_.quiet() ? GetSysColor(COLOR_GRAYTEXT)
                                           : GetSysColor(COLOR_BTNTEXT));
        write(cells[i], DT_RIGHT);
        cell.right = cell.left;
    }
    SetTextColor(dc, GetSysColor(gauges_.quiet() ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    cell.left = line.left;
    if (!cells.empty()) write(cells.front(), DT_LEFT);
}

void GaugesView::paintBar(HDC dc, const RECT& bar, const ui::Gauges::Gauge& gauge) const {
    const auto at = [&bar](double part) {
        const double shown = std::clamp(part, 0.0, ui::Gauges::scale) / ui::Gauges::scale;
        return bar.left + static_cast<LONG>(widthOf(bar) * shown);
    };
    FillRect(dc, &bar, GetSysColorBrush(COLOR_WINDOW));
    const RECT reached{bar.left, bar.top, at(std::min(gauge.reached, 1.0)), bar.bottom};
    FillRect(dc, &reached, GetSysColorBrush(COLOR_HIGHLIGHT));
    if (gauge.reached > 1) {
        const RECT beyond{at(1), bar.top, at(gauge.reached), bar.bottom};
        SetBkColor(dc, GetSysColor(COLOR_WINDOW));
        SetBkMode(dc, OPAQUE);
        const GdiObject<HBRUSH> hatched{CreateHatchBrush(HS_BDIAGONAL, theme().warningColour())};
        FillRect(dc, &beyond, hatched);
        SetBkMode(dc, TRANSPARENT);
    }
    FrameRect(dc, &bar, GetSysColorBrush(COLOR_3DSHADOW));
    for (const double part : {1.0, gauge.permitted}) {
        const RECT tick{at(part), bar.top - theme().scaled(2), at(part) + theme().scaled(2),
                        bar.bottom + theme().scaled(2)};
        FillRect(dc, &tick, GetSysColorBrush(COLOR_BTNTEXT));
    }
}

} // namespace tellurix::windows
