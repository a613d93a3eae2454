#include "screens/make_view.h"

#include "screens/ButtonView.h"
#include "screens/CheckBoxView.h"
#include "screens/FrameView.h"
#include "screens/GridView.h"
#include "screens/LabelView.h"
#include "screens/ListViews.h"
#include "screens/ProgressBarView.h"
#include "screens/TabsView.h"
#include "screens/TextBoxView.h"
#include "screens/UpDownView.h"

namespace tellurix::windows {

std::unique_ptr<ControlView> makeView(ViewHost& host, ui::Control& control) {
    using ui::ControlKind;
    switch (control.kind()) {
    case ControlKind::label:
        return std::make_unique<LabelView>(host, static_cast<ui::Label&>(control));
    case ControlKind::textBox:
        return std::make_unique<TextBoxView>(host, static_cast<ui::TextBox&>(control));
    case ControlKind::button:
        return std::make_unique<ButtonView>(host, static_cast<ui::Button&>(control));
    case ControlKind::checkBox:
        return std::make_unique<CheckBoxView>(host, static_cast<ui::CheckBox&>(control));
    case ControlKind::comboBox:
        return std::make_unique<ComboBoxView>(host, static_cast<ui::ItemList&>(control));
    case ControlKind::listBox:
        return std::make_unique<ListBoxView>(host, static_cast<ui::ItemList&>(control));
    case ControlKind::grid:
        return std::make_unique<GridView>(host, static_cast<ui::Grid&>(control));
    case ControlKind::frame:
        return std::make_unique<FrameView>(host, static_cast<ui::Frame&>(control));
    case ControlKind::tabs:
        return std::make_unique<TabsView>(host, static_cast<ui::Tabs&>(control));
    case ControlKind::upDown:
        return std::make_unique<UpDownView>(host, static_cast<ui::UpDown&>(control));
    case ControlKind::progressBar:
        break;
    }
    return std::make_unique<ProgressBarView>(host, static_cast<ui::ProgressBar&>(control));
}

} // namespace tellurix::windows
