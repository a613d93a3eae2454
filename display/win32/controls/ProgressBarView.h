#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/ProgressBar.h"

namespace tellurix::windows {

/// How far a long operation has come.
class ProgressBarView final : public ControlView {
public:
    ProgressBarView(ViewHost& host, ui::ProgressBar& progress);

    Room measure() const override;
    void placeControl(const RECT& rect) override;

private:
    void draw() override;

    ui::ProgressBar& progress_;
};

} // namespace tellurix::windows
