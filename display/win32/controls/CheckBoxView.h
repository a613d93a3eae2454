#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/CheckBox.h"

namespace tellurix::windows {

/// A box to tick, with its caption.
class CheckBoxView final : public ControlView {
public:
    CheckBoxView(ViewHost& host, ui::CheckBox& check);

    Room measure() const override;
    void notified(UINT code, NMHDR* details) override;

private:
    void draw() override;

    ui::CheckBox& check_;
};

} // namespace tellurix::windows
