#include "module/ui/input/key_use.h"

#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/TextBox.h"

#include <algorithm>
#include <array>

namespace tellurix::ui {

namespace {

/// Keys that go the same way.
enum class Keys { space, sideways, upOrDown, toAnEnd, page, erasing, insert, edit, all, undo, every };
enum class When { always, silent, withCtrl, listening, severalLines, locked, filtered };

struct Row {
    ControlKind kind;
    Keys keys;
    When when;
    KeyUse use;
};

/// The first row that fits counts. Without one the key is the native control's.
constexpr std::array<Row, 33> keyTable{{
    {ControlKind::button, Keys::space, When::always, KeyUse::rules},
    {ControlKind::checkBox, Keys::space, When::always, KeyUse::rules},
    {ControlKind::tabs, Keys::sideways, When::always, KeyUse::rules},
    {ControlKind::upDown, Keys::upOrDown, When::always, KeyUse::rules},

    {ControlKind::comboBox, Keys::upOrDown, When::always, KeyUse::rules},
    {ControlKind::comboBox, Keys::page, When::always, KeyUse::rules},
    {ControlKind::comboBox, Keys::toAnEnd, When::always, KeyUse::rules},
    {ControlKind::comboBox, Keys::erasing, When::listening, KeyUse::rules},
    {ControlKind::listBox, Keys::upOrDown, When::always, KeyUse::rules},
    {ControlKind::listBox, Keys::page, When::always, KeyUse::rules},
    {ControlKind::listBox, Keys::toAnEnd, When::always, KeyUse::rules},

    {ControlKind::grid, Keys::sideways, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::upOrDown, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::page, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::toAnEnd, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::erasing, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::insert, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::edit, When::always, KeyUse::rules},
    {ControlKind::grid, Keys::all, When::withCtrl, KeyUse::rules},
    // Copying and pasting.
    {ControlKind::grid, Keys::every, When::withCtrl, KeyUse::native},
    {ControlKind::grid, Keys::every, When::listening, KeyUse::overheard},

    // A display's own undoing would bring back text past the filter.
    {ControlKind::textBox, Keys::undo, When::filtered, KeyUse::rules},
    {ControlKind::textBox, Keys::every, When::silent, KeyUse::native},
    // Moving in it is the native box's; the screen may have other plans for it all the same.
    {ControlKind::textBox, Keys::sideways, When::always, KeyUse::overheard},
    {ControlKind::textBox, Keys::toAnEnd, When::always, KeyUse::overheard},
    {ControlKind::textBox, Keys::upOrDown, When::severalLines, KeyUse::native},
    {ControlKind::textBox, Keys::page, When::severalLines, KeyUse::native},
    {ControlKind::textBox, Keys::upOrDown, When::always, KeyUse::rules},
    {ControlKind::textBox, Keys::page, When::always, KeyUse::rules},
    {ControlKind::textBox, Keys::every, When::withCtrl, KeyUse::native},
    {ControlKind::textBox, Keys::erasing, When::always, KeyUse::rules},
    {ControlKind::textBox, Keys::every, When::locked, KeyUse::native},
    // A character comes after its key, and has a use of its own.
    {ControlKind::textBox, Keys::every, When::listening, KeyUse::overheard},
}};

bool isAmong(Key key, Keys keys) {
    switch (keys) {
    case Keys::space:
        return key == Key::space;
    case Keys::sideways:
        return key == Key::left || key == Key::right;
    case Keys::upOrDown:
        return key == Key::up || key == Key::down;
    case Keys::toAnEnd:
        return key == Key::home || key == Key::end;
    case Keys::page:
        return key == Key::pageUp || key == Key::pageDown;
    case Keys::erasing:
        return key == Key::backspace || key == Key::del;
    case Keys::insert:
        return key == Key::insert;
    case Keys::edit:
        return key == Key::f2;
    case Keys::all:
        return key == Key{'A'};
    case Keys::undo:
        return key == Key{'Z'};
    case Keys::every:
        return true;
    }
    return false;
}

bool isSo(When when, const KeyTraits& traits, const KeyDown& key) {
    switch (when) {
    case When::always:
        return true;
    case When::silent:
        return !traits.listens;
    case When::withCtrl:
        return key.ctrl;
    case When::listening:
        return traits.listens;
    case When::severalLines:
        return traits.severalLines;
    case When::locked:
        return traits.locked;
    case When::filtered:
        return traits.filtered && !traits.locked && key.ctrl;
    }
    return false;
}

} // namespace

KeyTraits keyTraitsOf(const Control* control) {
    if (control == nullptr) return {};
    KeyTraits traits{.kind = control->kind(), .listens = static_cast<bool>(control->onKeyDown)};
    if (const TextBox* box = as<TextBox>(control)) {
        traits.severalLines = box->lines() > 1;
        traits.locked = box->locked();
        traits.filtered = box->filtered();
    }
    return traits;
}

KeyUse keyUse(const KeyTraits& traits, const KeyDown& key) {
    // With Alt it is an access key, or the display's own.
    if (key.key == Key::none || key.alt) return KeyUse::native;
    // Opens a list, as everywhere; in a box it is the picker.
    if (key.key == Key::f4) return traits.kind == ControlKind::comboBox ? KeyUse::native : KeyUse::rules;
    if (key.key == Key::enter || key.key == Key::escape || key.key == Key::f1) return KeyUse::rules;
    if (key.key == Key{'S'} && key.ctrl) return KeyUse::rules;
    if (key.key == Key::tab) return key.ctrl ? KeyUse::nobody : KeyUse::rules;
    const auto row = std::ranges::find_if(keyTable, [&](const Row& candidate) {
        return candidate.kind == traits.kind && isAmong(key.key, candidate.keys) &&
               isSo(candidate.when, traits, key);
    });
    return row == keyTable.end() ? KeyUse::native : row->use;
}

bool actsOnce(const KeyTraits& traits, Key key) {
    if (key == Key::enter || key == Key::escape || key == Key::f1 || key == Key::f4) return true;
    // A row is gone at once, and another one begun.
    if (traits.kind == ControlKind::grid && (key == Key::del || key == Key::insert)) return true;
    return key == Key::space && traits.kind != ControlKind::textBox;
}

KeyUse characterUse(const Control& control) {
    if (const TextBox* box = as<TextBox>(&control))
        return box->filtered() && !box->locked() ? KeyUse::rules : KeyUse::native;
    if (as<Grid>(&control) != nullptr) return KeyUse::rules;
    // Letters look for the item that begins with them.
    const bool isList = as<ComboBox>(&control) != nullptr || as<ListBox>(&control) != nullptr;
    return isList ? KeyUse::native : KeyUse::nobody;
}

} // namespace tellurix::ui
