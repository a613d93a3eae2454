#include "display/win32/controls/ChartView.h"

#include "com/automation/wide.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>

namespace tellurix::windows {

ChartView::ChartView(ViewHost& host, ui::Chart& chart) : PaintedView(host, chart), chart_(chart) {
    create(L"STATIC", SS_NOTIFY); // which tells clicks
}

Room ChartView::measure() const {
    const int height = theme().scaled(150) + 2 * theme().lineHeight();
    return {{theme().scaled(200), theme().scaled(420)}, Extent::fixed(height)};
}

void ChartView::draw() {
    InvalidateRect(handle(), nullptr, FALSE);
}

RECT ChartView::plot(const RECT& all) const {
    const int line = theme().textHeight() + theme().scaled(3);
    const int above = chart_.series().empty() ? line : 2 * line;
    return {all.left + theme().scaled(36), all.top + above, all.right - theme().scaled(4), all.bottom - line};
}

int ChartView::left(const RECT& plot, double bar) const {
    return static_cast<int>(plot.left + widthOf(plot) * bar / static_cast<double>(chart_.bars().size()));
}

int ChartView::height(const RECT& plot, double value) const {
    return static_cast<int>(std::lround(heightOf(plot) * std::max(value, 0.0) / chart_.scale().top));
}

void ChartView::write(HDC dc, const std::string& text, int x, int y, UINT align) const {
    const std::wstring wide = widen(text);
    SetTextAlign(dc, align | TA_TOP);
    TextOutW(dc, x, y, wide.c_str(), static_cast<int>(wide.size()));
}

HBRUSH ChartView::brushOf(std::size_t series, bool marked) const {
    if (series > 0) return GetSysColorBrush(COLOR_WINDOW); // hollow
    return GetSysColorBrush(marked ? COLOR_HIGHLIGHT : COLOR_3DSHADOW);
}

void ChartView::paint(HDC dc, const RECT& all) const {
    FillRect(dc, &all, background());
    if (chart_.bars().empty()) return;
    const Selected withFont{dc, theme().font()};
    colour(dc);
    SetBkMode(dc, TRANSPARENT);
    const RECT area = plot(all);
    paintSeries(dc, all);
    paintAxis(dc, area);
    for (int bar = 0; bar < static_cast<int>(chart_.bars().size()); ++bar)
        paintBar(dc, area, bar);
    paintToday(dc, area);
}

void ChartView::paintSeries(HDC dc, const RECT& all) const {
    int x = all.left + theme().scaled(36);
    const int side = theme().textHeight() - theme().scaled(4);
    for (std::size_t i = 0; i < chart_.series().size(); ++i) {
        const RECT sign{x, all.top + theme().scaled(2), x + side, all.top + theme().scaled(2) + side};
        FillRect(dc, &sign, brushOf(i, false));
        FrameRect(dc, &sign, GetSysColorBrush(COLOR_BTNTEXT));
        x += side + theme().scaled(4);
        write(dc, chart_.series()[i], x, all.top, TA_LEFT);
        x += theme().textSize(chart_.series()[i], false).cx + theme().groupGap();
    }
}

void ChartView::paintAxis(HDC dc, const RECT& plot) const {
    const ui::Chart::Scale scale = chart_.scale();
    for (double value = 0; value <= scale.top; value += scale.step) {
        const int y = plot.bottom - height(plot, value);
        const RECT line{plot.left, y, plot.right, y + 1};
        FillRect(dc, &line, GetSysColorBrush(value == 0 ? COLOR_BTNTEXT : COLOR_3DLIGHT));
        write(dc, std::to_string(std::lround(value)), plot.left - theme().scaled(4),
              y - theme().textHeight() / 2, TA_RIGHT);
    }
}

void ChartView::paintBar(HDC dc, const RECT& plot, int index) const {
    const ui::Chart::Bar& bar = chart_.bars()[static_cast<std::size_t>(index)];
    const bool marked = index == chart_.marked();
    const double part = 0.8 / static_cast<double>(std::max<std::size_t>(bar.values.size(), 1));
    int highest = 0;
    for (std::size_t i = 0; i < bar.values.size(); ++i) {
        const double from = index + 0.1 + part * static_cast<double>(i);
        const int high = height(plot, bar.values[i]);
        highest = std::max(highest, high);
        const RECT area{left(plot, from), plot.bottom - high, left(plot, from + part), plot.bottom};
        if (high == 0) continue;
        FillRect(dc, &area, brushOf(i, marked));
        if (marked || i > 0) FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNTEXT));
    }
    if (bar.empty()) {
        const GdiObject<HBRUSH> warning{CreateSolidBrush(theme().warningColour())};
        const RECT area{left(plot, index + 0.1), plot.bottom - theme().scaled(3), left(plot, index + 0.9),
                        plot.bottom};
        FillRect(dc, &area, warning);
    }
    const int middle = left(plot, index + 0.5);
    if (index % chart_.namedEvery() == 0)
        write(dc, bar.name, middle, plot.bottom + theme().scaled(2), TA_CENTER);
    if (!marked) return;
    const Selected bold{dc, theme().boldFont()};
    const int half = static_cast<int>(theme().textSize(bar.text, false, 0, true).cx) / 2;
    const int x =
        std::clamp(middle, static_cast<int>(plot.left) + half,
                   std::max(static_cast<int>(plot.left) + half, static_cast<int>(plot.right) - half));
    write(dc, bar.text, x, plot.bottom - highest - theme().textHeight() - theme().scaled(1), TA_CENTER);
}

void ChartView::paintToday(HDC dc, const RECT& plot) const {
    if (!chart_.today()) return;
    const int x = left(plot, *chart_.today());
    const int top = plot.top - theme().textHeight();
    {
        const GdiObject<HPEN> pen{CreatePen(PS_DOT, 1, GetSysColor(COLOR_BTNTEXT))};
        const Selected withPen{dc, HPEN{pen}};
        MoveToEx(dc, x, top, nullptr);
        LineTo(dc, x, plot.bottom);
    }
    const bool atEnd = x + theme().textSize(chart_.todayText(), false).cx > plot.right;
    const int beside = theme().scaled(atEnd ? -4 : 4);
    write(dc, chart_.todayText(), x + beside, top, atEnd ? TA_RIGHT : TA_LEFT);
}

LRESULT ChartView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN && !chart_.bars().empty()) {
        RECT all{};
        GetClientRect(handle(), &all);
        const RECT area = plot(all);
        const POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        if (at.x >= area.left && at.x < area.right && at.y >= area.top) {
            const auto bar =
                (at.x - area.left) * static_cast<LONG>(chart_.bars().size()) / std::max(widthOf(area), 1);
            tell(ui::SelectEvent{&chart_, static_cast<int>(bar)});
        }
    }
    return PaintedView::onMessage(message, wParam, lParam);
}

} // namespace tellurix::windows
