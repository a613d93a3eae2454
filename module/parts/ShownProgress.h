#pragma once

#include "module/ui/Display.h"
#include "module/ui/controls/ProgressBar.h"

namespace tellurix::parts {

/// Shows how far an operation over many rows has come, with the hourglass, as long as it lives. It draws
/// as often as the bar visibly grows, however many rows there are.
class ShownProgress {
public:
    /// @param bar hidden again afterwards
    ShownProgress(ui::Display& display, ui::ProgressBar& bar, int rows);
    ~ShownProgress() { bar_.setVisible(false); }
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

    /// One more row is done.
    void step();

private:
    ui::Display& display_;
    ui::ProgressBar& bar_;
    ui::BusyPointer busy_;
    int rows_;
    int done_ = 0;
};

} // namespace tellurix::parts
