#pragma once

#include "display/win32/controls/PaintedView.h"
#include "module/ui/controls/Frame.h"

namespace tellurix::windows {

/// A border with a caption. The controls inside are windows beside it, so it lies below them and
/// paints the ground they stand on.
class FrameView final : public PaintedView {
public:
    FrameView(ViewHost& host, ui::Frame& frame);

    /// What the border takes at least; its content is the arrangement's.
    Room measure() const override;
    RECT padding() const override;

private:
    void draw() override;
    void paint(HDC dc, const RECT& all) const override;

    ui::Frame& frame_;
};

} // namespace tellurix::windows
