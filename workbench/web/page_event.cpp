#include "web/page_event.h"

#include "common/text.h"
#include "ui/ComboBox.h"
#include "ui/Grid.h"
#include "ui/ListBox.h"
#include "ui/TextBox.h"

#include <algorithm>

namespace tellurix::workbench {

namespace {

using Kind = PageMessage::Kind;
using ui::ControlKind;

ui::TextBox* editableBox(ui::Control& control) {
    if (control.kind() != ControlKind::textBox) return nullptr;
    auto& box = static_cast<ui::TextBox&>(control);
    return box.locked() ? nullptr : &box;
}

bool isTyped(char32_t character, const ui::TextBox& box) {
    return character >= 32 || (character == U'\n' && box.lines() > 1);
}

/// Whether `after` is `before` with one stretch taken out.
bool onlyRemoves(const std::u32string& before, const std::u32string& after) {
    if (after.size() > before.size()) return false;
    const auto front = std::ranges::mismatch(after, before).in1 - after.begin();
    const auto back = std::mismatch(after.rbegin(), after.rend(), before.rbegin()).first - after.rbegin();
    return front + back >= static_cast<std::ptrdiff_t>(after.size());
}

std::optional<ui::Event> textEdited(const PageMessage& message, ui::TextBox& box) {
    const std::u32string before = common::decodeUtf8(box.text());
    const std::u32string after = common::decodeUtf8(message.text);
    // A longer text that the program put there may still be shortened step by step.
    const auto limit = std::max(static_cast<std::size_t>(box.maxLength()), before.size());
    if (box.maxLength() > 0 && after.size() > limit) return std::nullopt;
    if (!std::ranges::all_of(after, [&box](char32_t c) { return isTyped(c, box); })) return std::nullopt;
    // The page edits a box with a filter by itself only where nothing new comes in.
    if (box.onKeyPress && !onlyRemoves(before, after)) return std::nullopt;
    const int end = static_cast<int>(after.size());
    const int start = std::min(message.start, end);
    return ui::TextEditedEvent{&box, message.text, start, std::min(message.length, end - start)};
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
        if (ui::TextBox* box = editableBox(control)) return textEdited(message, *box);
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
    case Kind::keyUp:
        return ui::KeyUpEvent{message.key.key};
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
