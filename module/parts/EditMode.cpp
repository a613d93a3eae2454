#include "module/parts/EditMode.h"

#include <utility>

namespace tellurix::parts {

namespace {

void enable(const std::vector<ui::Control*>& controls, bool enabled) {
    for (ui::Control* control : controls)
        control->setEnabled(enabled);
}

} // namespace

EditMode::EditMode(Buttons buttons, Controls controls, std::function<bool()> hasRow)
    : controls_(std::move(controls)), cancel_(buttons.cancel), hasRow_(std::move(hasRow)) {
    const auto add = [](std::vector<ui::Control*>& to, std::initializer_list<ui::Button*> some) {
        for (ui::Button* button : some)
            if (button != nullptr) to.push_back(button);
    };
    add(controls_.inView, {buttons.create});
    add(controls_.onRow, {buttons.edit, buttons.remove});
    add(controls_.whileEdited, {buttons.save, buttons.cancel});
    // Nobody has to correct a field in order to throw it away.
    if (buttons.cancel != nullptr) buttons.cancel->setCausesValidation(false);
    if (controls_.rows == nullptr) return;
    for (const auto& [key, button] :
         {std::pair{ui::Key::insert, buttons.create}, std::pair{ui::Key::f2, buttons.edit},
          std::pair{ui::Key::del, buttons.remove}})
        if (button != nullptr) controls_.rows->pressOn(key, *button);
}

void EditMode::enter(State state) {
    state_ = state;
    if (viewing() && controls_.changes != nullptr) controls_.changes->forget();
    enable(controls_.inView, viewing());
    enable(controls_.onRow, viewing() && hasRow_());
    enable(controls_.whileEdited, !viewing());
    onEnter();
}

} // namespace tellurix::parts
