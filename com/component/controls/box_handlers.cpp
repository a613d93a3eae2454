#include "com/component/controls/box_handlers.h"

#include "com/component/controls/BoxObject.h"

namespace tellurix::windows {

namespace {

struct CharacterTyped {
    ui::TextBox* box;
    std::shared_ptr<BoxHandlers> handlers;

    void operator()(char32_t& character) const {
        if (character == 0 || !handlers->keyPress) return;
        const Lent<BoxObject> lent(*box);
        character = static_cast<char32_t>(
            handlers->keyPress.call(L"KeyPress", {lent.argument(), static_cast<std::int32_t>(character)})
                .integer());
    }
};

struct TextChanged {
    ui::TextBox* box;
    std::shared_ptr<BoxHandlers> handlers;

    void operator()() const {
        if (!handlers->change) return;
        const Lent<BoxObject> lent(*box);
        handlers->change.call(L"Change", {lent.argument()});
    }
};

} // namespace

BoxHandlers& handlersOf(ui::TextBox& box) {
    if (const TextChanged* present = box.onChange.find<TextChanged>()) return *present->handlers;
    const auto handlers = std::make_shared<BoxHandlers>();
    // Behind the box's filter, and before whoever looks at the text that the host has changed.
    box.onKeyPress.after(CharacterTyped{&box, handlers});
    box.onChange.before(TextChanged{&box, handlers});
    return *handlers;
}

} // namespace tellurix::windows
