#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Gauges.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/ProgressBar.h"
#include "module/ui/controls/Tabs.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/controls/UpDown.h"

#include <type_traits>

namespace tellurix::ui {

/// Calls an action with a control as what it is: a Label&, a TextBox&, and so on.
/// @param control a Control or const Control
template <typename AnyControl, typename Action>
decltype(auto) visit(AnyControl& control, const Action& action) {
    const auto call = [&]<typename C>(std::type_identity<C>) -> decltype(auto) {
        using Kept = std::conditional_t<std::is_const_v<AnyControl>, const C, C>;
        return action(static_cast<Kept&>(control));
    };
    switch (control.kind()) {
    case ControlKind::label:
        return call(std::type_identity<Label>{});
    case ControlKind::textBox:
        return call(std::type_identity<TextBox>{});
    case ControlKind::button:
        return call(std::type_identity<Button>{});
    case ControlKind::checkBox:
        return call(std::type_identity<CheckBox>{});
    case ControlKind::comboBox:
        return call(std::type_identity<ComboBox>{});
    case ControlKind::listBox:
        return call(std::type_identity<ListBox>{});
    case ControlKind::grid:
        return call(std::type_identity<Grid>{});
    case ControlKind::frame:
        return call(std::type_identity<Frame>{});
    case ControlKind::tabs:
        return call(std::type_identity<Tabs>{});
    case ControlKind::upDown:
        return call(std::type_identity<UpDown>{});
    case ControlKind::chart:
        return call(std::type_identity<Chart>{});
    case ControlKind::gauges:
        return call(std::type_identity<Gauges>{});
    case ControlKind::progressBar:
        break;
    }
    return call(std::type_identity<ProgressBar>{});
}

} // namespace tellurix::ui
