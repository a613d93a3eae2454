#pragma once

#include "display/win32/controls/ControlView.h"

namespace tellurix::windows {

/// A control that paints all of itself, in the system's colours.
class PaintedView : public ControlView {
public:
    using ControlView::ControlView;

protected:
    /// @param all the client area, whose ground is not painted yet
    virtual void paint(HDC dc, const RECT& all) const = 0;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace tellurix::windows
