#include "display/win32/controls/ProgressBarView.h"

namespace tellurix::windows {

ProgressBarView::ProgressBarView(ViewHost& host, ui::ProgressBar& progress)
    : ControlView(host, progress), progress_(progress) {
    create(PROGRESS_CLASSW, 0);
}

Room ProgressBarView::measure() const {
    return {{theme().scaled(80), theme().scaled(200)}, Extent::fixed(theme().lineHeight())};
}

void ProgressBarView::placeControl(const RECT& rect) {
    // Thinner than the buttons and boxes beside it.
    RECT bar = rect;
    InflateRect(&bar, 0, -theme().scaled(4));
    ControlView::placeControl(bar);
}

void ProgressBarView::draw() {
    SendMessageW(handle(), PBM_SETRANGE32, 0, progress_.maximum());
    SendMessageW(handle(), PBM_SETPOS, static_cast<WPARAM>(progress_.value()), 0);
}

} // namespace tellurix::windows
