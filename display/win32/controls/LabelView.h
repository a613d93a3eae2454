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
    /// It stands before a box, which a long caption must not push out of the window.
    void setBeforeBox();

private:
    void draw() override;
    SIZE textSize() const;

    ui::Label& label_;
    int longestLine_ = 80; ///< in average characters
};

} // namespace tellurix::windows
