#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/Button.h"

#include <string>

namespace tellurix::windows {

/// A push button with a caption or a picture.
class ButtonView final : public ControlView {
public:
    ButtonView(ViewHost& host, ui::Button& button);
    ~ButtonView() override;

    Room measure() const override;
    void notified(UINT code, NMHDR* details) override;
    /// Marked as the default button, or not.
    void setPrimary(bool primary);

private:
    void draw() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void drawPicture();
    std::string tip() const override;

    ui::Button& button_;
    HICON icon_ = nullptr;
    std::string shownPicture_;
};

} // namespace tellurix::windows
