#include "module/parts/ShownProgress.h"

namespace tellurix::parts {

namespace {

/// How many times the bar grows, at most.
constexpr int visibleSteps = 50;

} // namespace

ShownProgress::ShownProgress(ui::Display& display, ui::ProgressBar& bar, int rows)
    : display_(display), bar_(bar), busy_(display), rows_(rows) {
    bar_.setProgress(0, rows);
    bar_.setVisible(true);
}

void ShownProgress::step() {
    const auto grown = [this](int done) { return static_cast<long>(done) * visibleSteps / rows_; };
    ++done_;
    if (grown(done_) == grown(done_ - 1)) return;
    bar_.setProgress(done_, rows_);
    display_.refresh();
}

} // namespace tellurix::parts
