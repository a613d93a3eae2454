#include "com/component/controls/BoxObject.h"

#include "com/component/controls/box_handlers.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/caption.h"

namespace tellurix::windows {

namespace {

/// What the user sees the box called; empty when nothing names it.
std::string labelOf(const ui::TextBox& box) {
    const ui::Label* label = box.form().labelOf(box);
    return label == nullptr ? std::string() : ui::plainCaption(label->caption());
}

} // namespace

const DispatchTable& BoxObject::table() const {
    using Box = BoxObject;
    using Given = const CallArguments&;
    static const DispatchTable members =
        DispatchTable()
            .method<Box>(L"Name", [](Box& box, Given) { return Variant(box.target().name()); })
            .method<Box>(L"Label", [](Box& box, Given) { return Variant(labelOf(box.target())); })
            .property<Box>(
                L"Text", [](Box& box, Given) { return Variant(box.target().text()); },
                [](Box& box, Given given) { box.target().setText(given[0].text()); })
            .property<Box>(
                L"Tag", [](Box& box, Given) { return Variant(box.target().tag()); },
                [](Box& box, Given given) { box.target().setTag(given[0].text()); })
            .method<Box>(L"MaxLength", [](Box& box, Given) { return Variant(box.target().maxLength()); })
            .property<Box>(
                L"Locked", [](Box& box, Given) { return Variant(box.target().locked()); },
                [](Box& box, Given given) { box.target().setLocked(given[0].flag()); })
            .property<Box>(
                L"SelStart", [](Box& box, Given) { return Variant(box.target().selectionStart()); },
                [](Box& box, Given given) { box.target().select(given[0].integer(), 0); })
            .property<Box>(
                L"SelLength", [](Box& box, Given) { return Variant(box.target().selectionLength()); },
                [](Box& box, Given given) {
                    box.target().select(box.target().selectionStart(), given[0].integer());
                })
            .property<Box>(
                L"KeyPressHandler",
                [](Box& box, Given) { return Variant(handlersOf(box.target()).keyPress.object()); },
                [](Box& box, Given given) {
                    handlersOf(box.target()).keyPress = Dispatch(given[0].object());
                })
            .property<Box>(
                L"ChangeHandler",
                [](Box& box, Given) { return Variant(handlersOf(box.target()).change.object()); },
                [](Box& box, Given given) { handlersOf(box.target()).change = Dispatch(given[0].object()); });
    return members;
}

} // namespace tellurix::windows
