#pragma once

#include "display/win32/controls/PaintedView.h"
#include "module/ui/controls/Chart.h"

namespace tellurix::windows {

/// Bars side by side, the marked one in the colour of a selection.
class ChartView final : public PaintedView {
public:
    ChartView(ViewHost& host, ui::Chart& chart);

private:
    Room measure() const override;
    bool fills() const override { return true; }
    void draw() override;
    void paint(HDC dc, const RECT& all) const override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Where the bars stand, within what is written around them.
    RECT plot(const RECT& all) const;
    /// The place of a bar and its neighbours' borders, in pixels.
    int left(const RECT& plot, double bar) const;
    int height(const RECT& plot, double value) const;

    void paintAxis(HDC dc, const RECT& plot) const;
    void paintBar(HDC dc, const RECT& plot, int index) const;
    void paintToday(HDC dc, const RECT& plot) const;
    void paintSeries(HDC dc, const RECT& all) const;
    void write(HDC dc, const std::string& text, int x, int y, UINT align) const;
    /// A brush for the values of a series.
    HBRUSH brushOf(std::size_t series, bool marked) const;

    ui::Chart& chart_;
};

} // namespace tellurix::windows
