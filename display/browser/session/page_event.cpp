#include "display/browser/session/page_event.h"

#include "module/ui/controls/visit.h"

namespace tellurix::browser {

namespace {

using Kind = PageMessage::Kind;

/// A box that the user can change, or null.
ui::TextBox* editableBox(ui::Control& control) {
    auto* box = ui::as<ui::TextBox>(&control);
    return box == nullptr || box->locked() ? nullptr : box;
}

/// How many entries can be chosen from.
int countOf(const ui::Control& control) {
    return ui::visit(control, [](const auto& visited) {
        if constexpr (requires { visited.rows().size(); })
            return static_cast<int>(visited.rows().size());
        else if constexpr (requires { visited.items(); })
            return static_cast<int>(visited.items().size());
        else if constexpr (requires { visited.bars(); })
            return static_cast<int>(visited.bars().size());
        else if constexpr (requires { visited.captions(); })
            return static_cast<int>(visited.captions().size());
        else
            return 0;
    });
}

std::optional<ui::Event> controlEvent(const PageMessage& message, ui::Control& control) {
    switch (message.kind) {
    case Kind::focus:
        if (!control.takesFocus()) return std::nullopt;
        return ui::FocusEvent{&control};
    case Kind::text:
        if (ui::TextBox* box = editableBox(control))
            return ui::TextEditedEvent{box, message.text, message.start, message.length};
        return std::nullopt;
    case Kind::selection:
        if (auto* box = ui::as<ui::TextBox>(&control))
            return ui::SelectionEvent{box, message.start, message.length};
        return std::nullopt;
    case Kind::paste:
        if (editableBox(control) == nullptr && ui::as<ui::Grid>(&control) == nullptr) return std::nullopt;
        return ui::PasteEvent{&control, message.text};
    case Kind::click:
        if (ui::as<ui::Button>(&control) == nullptr && ui::as<ui::CheckBox>(&control) == nullptr)
            return std::nullopt;
        return ui::ClickEvent{&control};
    case Kind::step:
        if (ui::as<ui::UpDown>(&control) == nullptr) return std::nullopt;
        return ui::StepEvent{&control, message.up};
    case Kind::select:
        if (message.index >= countOf(control)) return std::nullopt;
        return ui::SelectEvent{&control, message.index, message.column, message.extends};
    case Kind::doubleClick:
        return ui::DoubleClickEvent{&control};
    case Kind::heading:
        if (const auto* grid = ui::as<ui::Grid>(&control);
            grid == nullptr || message.column >= static_cast<int>(grid->columns().size()))
            return std::nullopt;
        return ui::HeadingEvent{&control, message.column};
    case Kind::scroll:
        return ui::ScrollEvent{&control};
    case Kind::columnSized:
        return ui::ColumnSizedEvent{&control, message.column, message.width};
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
        return ui::KeyDownEvent{message.key, message.width};
    case Kind::pickKey:
        return ui::PickKeyEvent{};
    case Kind::character:
        return ui::KeyPressEvent{message.character};
    case Kind::accessKey:
        return ui::AccessKeyEvent{message.character};
    case Kind::statusAction:
        return ui::StatusActionEvent{};
    case Kind::close:
        return ui::CloseEvent{};
    case Kind::answer:
    case Kind::file:
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

} // namespace tellurix::browser
