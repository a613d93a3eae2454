#pragma once

#include "display/win32/controls/PaintedView.h"
#include "module/ui/controls/Gauges.h"

#include <vector>

namespace tellurix::windows {

/// Lines of words with a bar below each. The words are the window's text, too, for screen readers.
class GaugesView final : public PaintedView {
public:
    GaugesView(ViewHost& host, ui::Gauges& gauges);

private:
    Room measure() const override;
    bool fills() const override { return true; }
    void draw() override;
    void paint(HDC dc, const RECT& all) const override;

    int lineHeight() const { return theme().textHeight() + theme().scaled(6); }
    int barHeight() const { return theme().scaled(8); }
    /// Widths of all columns but the first, which has what is left over.
    std::vector<int> figureWidths() const;
    void paintCells(HDC dc, const RECT& line, const std::vector<int>& widths,
                    const std::vector<std::string>& cells, bool warns) const;
    void paintBar(HDC dc, const RECT& bar, const ui::Gauges::Gauge& gauge) const;

    ui::Gauges& gauges_;
};

} // namespace tellurix::windows
