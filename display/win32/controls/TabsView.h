#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/Tabs.h"

#include <string>
#include <vector>

namespace tellurix::windows {

/// The row of tabs and the page below it. What stands on the pages are windows beside it.
class TabsView final : public ControlView {
public:
    TabsView(ViewHost& host, ui::Tabs& tabs);

    /// What the tabs take at least; the pages are the arrangement's.
    Room measure() const override;
    RECT padding() const override;

    void notified(UINT code, NMHDR* details) override;

private:
    void draw() override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    ui::Tabs& tabs_;
    std::vector<std::string> shown_;
};

} // namespace tellurix::windows
