#include "web/page_event.h"

#include "ui/ComboBox.h"
#include "ui/Grid.h"
#include "ui/ListBox.h"
#include "ui/TextBox.h"

namespace tellurix::workbench {

namespace {

using Kind = PageMessage::Kind;
using ui::ControlKind;

ui::TextBox* editableBox(ui::Control& control) {
    if (control.kind() != ControlKind::textBox) return nullptr;
    auto& box = static_cast<ui::TextBox&>(control);
    return box.locked() ? nullptr : &box;
}

/// How many entries can be chosen from.
int countOf(const ui::Control& control) {
    switch (control.kind()) {
    case ControlKind::grid:
        return static_cast<int>(static_cast<const ui::Grid&>(control).rows().size());
    case ControlKind::comboBox:
    case ControlKind::listBox:
        return static_cast<int>(static_cast<const ui::ItemList&>(control).items().size());
    case ControlKind::tabs:
        return static_cast<int>(static_cast<const ui::Tabs&>(control).captions().size());
    default:
        return 0;
    }
}

std::optional<ui::Event> controlEvent(const PageMessage& message, ui::Control& control) {
    const ControlKind kind = control.kind();
    switch (message.kind) {
    case Kind::focus:
        if (!control.takesFocus()) return std::nullopt;
        return ui::FocusEvent{&control};
    case Kind::text:
        if (ui::TextBox* box = editableBox(control))
            return ui::TextEditedEvent{box, message.text, message.start, message.length};
        return std::nullopt;
    case Kind::selection:
        if (kind != ControlKind::textBox) return std::nullopt;
        return ui::SelectionEvent{static_cast<ui::TextBox*>(&control), message.start, message.length};
    case Kind::paste:
        if (ui::TextBox* box = editableBox(control)) return ui::PasteEvent{box, message.text};
        return std::nullopt;
    case Kind::click:
        if (kind != ControlKind::button && kind != ControlKind::checkBox) return std::nullopt;
        return ui::ClickEvent{&control};
    case Kind::step:
        if (kind != ControlKind::upDown) return std::nullopt;
        return ui::StepEvent{&control, message.up};
    case Kind::select:
        if (message.index >= countOf(control)) return std::nullopt;
        return ui::SelectEvent{&control, message.index, message.column};
    case Kind::doubleClick:
        return ui::DoubleClickEvent{&control};
    case Kind::scroll:
        return ui::ScrollEvent{&control};
    case Kind::pick:
        return ui::PickEvent{&control};
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<ui::Event> toEvent(const PageMessage& message, const ui::Form& form) {
    switch (message.kind) {
    case Kind::key:
        return ui::KeyDownEvent{message.key};
    case Kind::pickKey:
        return ui::PickKeyEvent{};
    case Kind::character:
        return ui::KeyPressEvent{message.character};
    case Kind::accessKey:
        return ui::AccessKeyEvent{message.character};
    case Kind::close:
        return ui::CloseEvent{};
    case Kind::answer:
    case Kind::redraw:
        return std::nullopt;
    default:
        break;
    }
    if (!message.control || *message.control >= form.controls().size()) return std::nullopt;
    ui::Control& control = *form.controls()[*message.control];
    if (!control.usable()) return std::nullopt;
    return controlEvent(message, control);
}

} // namespace tellurix::workbench
