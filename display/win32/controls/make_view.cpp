#include "display/win32/controls/make_view.h"

#include "display/win32/controls/ButtonView.h"
#include "display/win32/controls/ChartView.h"
#include "display/win32/controls/CheckBoxView.h"
#include "display/win32/controls/FrameView.h"
#include "display/win32/controls/GaugesView.h"
#include "display/win32/controls/LabelView.h"
#include "display/win32/controls/ListViews.h"
#include "display/win32/controls/ProgressBarView.h"
#include "display/win32/controls/TabsView.h"
#include "display/win32/controls/TextBoxView.h"
#include "display/win32/controls/UpDownView.h"
#include "display/win32/grid/GridView.h"
#include "module/ui/controls/visit.h"

namespace tellurix::windows {

namespace {

using View = std::unique_ptr<ControlView>;

View viewFor(ViewHost& host, ui::Label& label) {
    return std::make_unique<LabelView>(host, label);
}
View viewFor(ViewHost& host, ui::TextBox& box) {
    return std::make_unique<TextBoxView>(host, box);
}
View viewFor(ViewHost& host, ui::Button& button) {
    return std::make_unique<ButtonView>(host, button);
}
View viewFor(ViewHost& host, ui::CheckBox& check) {
    return std::make_unique<CheckBoxView>(host, check);
}
View viewFor(ViewHost& host, ui::ComboBox& list) {
    return std::make_unique<ComboBoxView>(host, list);
}
View viewFor(ViewHost& host, ui::ListBox& list) {
    return std::make_unique<ListBoxView>(host, list);
}
View viewFor(ViewHost& host, ui::Grid& grid) {
    return std::make_unique<GridView>(host, grid);
}
View viewFor(ViewHost& host, ui::Frame& frame) {
    return std::make_unique<FrameView>(host, frame);
}
View viewFor(ViewHost& host, ui::Tabs& tabs) {
    return std::make_unique<TabsView>(host, tabs);
}
View viewFor(ViewHost& host, ui::UpDown& upDown) {
    return std::make_unique<UpDownView>(host, upDown);
}
View viewFor(ViewHost& host, ui::Chart& chart) {
    return std::make_unique<ChartView>(host, chart);
}
View viewFor(ViewHost& host, ui::Gauges& gauges) {
    return std::make_unique<GaugesView>(host, gauges);
}
View viewFor(ViewHost& host, ui::ProgressBar& bar) {
    return std::make_unique<ProgressBarView>(host, bar);
}

} // namespace

std::unique_ptr<ControlView> makeView(ViewHost& host, ui::Control& control) {
    return ui::visit(control, [&host](auto& visited) { return viewFor(host, visited); });
}

} // namespace tellurix::windows
