#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/UpDown.h"

namespace tellurix::windows {

/// A pair of small buttons, up and down, that can have the focus.
class UpDownView final : public ControlView {
public:
    UpDownView(ViewHost& host, ui::UpDown& upDown);

    Room measure() const override;
    void notified(UINT code, NMHDR* details) override;

private:
    void draw() override {}
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    ui::UpDown& upDown_;
};

} // namespace tellurix::windows
