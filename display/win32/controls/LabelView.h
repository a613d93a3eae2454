#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/Label.h"

namespace tellurix::windows {

/// A caption beside or above a control; a long one is broken into lines.
class LabelView final : public ControlView {
public:
    LabelView(ViewHost& host, ui::Label& label);

    Room measure() const override;
    HBRUSH colour(HDC dc) const override;

private:
    void draw() override;
    int wrapAt() const { return 80 * theme().characterWidth(); }

    ui::Label& label_;
};

} // namespace tellurix::windows
