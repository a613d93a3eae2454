#include "screens/key_use.h"

#include "ui/visit.h"

namespace tellurix::windows {

namespace {

using ui::Key;
using ui::KeyDown;

bool isSpace(Key key) {
    return key == Key::space;
}

bool isSideways(Key key) {
    return key == Key::left || key == Key::right;
}

bool isStep(Key key) {
    return key == Key::up || key == Key::down;
}

bool isUpOrDown(Key key) {
    return isStep(key) || key == Key::pageUp || key == Key::pageDown;
}

bool isToAnEnd(Key key) {
    return key == Key::home || key == Key::end;
}

KeyUse sessionIf(bool its) {
    return its ? KeyUse::session : KeyUse::native;
}

/// Keys that are not the same everywhere (as Tab, Enter, Esc and F4 are).
KeyUse useOf(const ui::Control&, const KeyDown&) {
    return KeyUse::native;
}

KeyUse useOf(const ui::Button&, const KeyDown& key) {
    return sessionIf(isSpace(key.key));
}

KeyUse useOf(const ui::CheckBox&, const KeyDown& key) {
    return sessionIf(isSpace(key.key));
}

KeyUse useOf(const ui::Tabs&, const KeyDown& key) {
    return sessionIf(isSideways(key.key));
}

KeyUse useOf(const ui::UpDown&, const KeyDown& key) {
    return sessionIf(isStep(key.key));
}

KeyUse useOf(const ui::ItemList&, const KeyDown& key) {
    return sessionIf(isUpOrDown(key.key) || isToAnEnd(key.key));
}

KeyUse useOf(const ui::Grid& grid, const KeyDown& key) {
    const bool edits = key.key == Key::del || key.key == Key::insert || key.key == Key::backspace;
    if (isUpOrDown(key.key) || isToAnEnd(key.key) || isSideways(key.key) || edits) return KeyUse::session;
    return grid.onKeyDown && !key.ctrl ? KeyUse::overheard : KeyUse::native;
}

KeyUse useOf(const ui::TextBox& box, const KeyDown& key) {
    if (!box.onKeyDown) return KeyUse::native;
    if (key.key == Key::backspace || key.key == Key::del) return sessionIf(!key.ctrl);
    if (isUpOrDown(key.key)) return sessionIf(box.lines() == 1);
    if (isSideways(key.key) || isToAnEnd(key.key)) return KeyUse::overheard;
    // The character comes after it, and has a use of its own.
    return key.ctrl || box.locked() ? KeyUse::native : KeyUse::overheard;
}

KeyUse characterUse(const ui::Control&, wchar_t) {
    return KeyUse::nobody;
}

KeyUse characterUse(const ui::ItemList&, wchar_t unit) {
    // Letters look for the item that begins with them.
    return unit >= 32 ? KeyUse::native : KeyUse::nobody;
}

KeyUse characterUse(const ui::Grid& grid, wchar_t unit) {
    return unit >= 32 && grid.onKeyPress ? KeyUse::session : KeyUse::nobody;
}

KeyUse characterUse(const ui::TextBox& box, wchar_t unit) {
    switch (unit) {
    case L'\b':
        return useOf(box, {.key = Key::backspace}) == KeyUse::session ? KeyUse::nobody : KeyUse::native;
    case L'\t':
    case L'\r':
    case L'\n':
    case 27:
    case 127:
        return KeyUse::nobody;
    default:
        return sessionIf(unit >= 32 && box.filtered() && box.changeable());
    }
}

} // namespace

KeyUse keyUseOf(const ui::Control* control, const KeyDown& key) {
    if (key.key == Key::none || key.alt) return KeyUse::native;
    switch (key.key) {
    case Key::f4:
        // Opens a list, as everywhere; in a box it is the picker.
        return sessionIf(ui::as<ui::ComboBox>(control) == nullptr);
    case Key::enter:
    case Key::escape:
        return KeyUse::session;
    case Key::tab:
        return key.ctrl ? KeyUse::nobody : KeyUse::session;
    default:
        break;
    }
    if (control == nullptr) return KeyUse::native;
    return ui::visit(*control, [&key](const auto& visited) { return useOf(visited, key); });
}

KeyUse characterUseOf(const ui::Control& control, wchar_t unit) {
    return ui::visit(control, [unit](const auto& visited) { return characterUse(visited, unit); });
}

} // namespace tellurix::windows
