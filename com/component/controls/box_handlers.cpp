#include "com/component/controls/box_handlers.h"

#include "com/component/controls/BoxObject.h"

#include <utility>

namespace tellurix::windows {

namespace {

/// The box's own handlers, each with the one that it had before.
struct CharacterTyped {
    ui::TextBox* box;
    std::shared_ptr<BoxHandlers> handlers;
    std::function<void(char32_t&)> before;

    void operator()(char32_t& character) const {
        if (before) before(character);
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
    std::function<void()> before;

    void operator()() const {
        if (handlers->change) {
            const Lent<BoxObject> lent(*box);
            handlers->change.call(L"Change", {lent.argument()});
        }
        if (before) before();
    }
};

} // namespace

BoxHandlers& handlersOf(ui::TextBox& box) {
    if (const TextChanged* present = box.onChange.target<TextChanged>()) return *present->handlers;
    const auto handlers = std::make_shared<BoxHandlers>();
    box.onKeyPress = CharacterTyped{&box, handlers, std::move(box.onKeyPress)};
    box.onChange = TextChanged{&box, handlers, std::move(box.onChange)};
    return *handlers;
}

} // namespace tellurix::windows
