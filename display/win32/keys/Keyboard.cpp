#include "display/win32/keys/Keyboard.h"

#include "module/ui/controls/TextBox.h"

namespace tellurix::windows {

namespace {

using ui::Key;
using ui::KeyDown;
using ui::KeyUse;

bool isHeld(int code) {
    return (GetKeyState(code) & 0x8000) != 0;
}

/// A key as the rules of input know it, `none` for one that they do not.
Key keyOf(WPARAM code) {
    if (code >= VK_NUMPAD0 && code <= VK_NUMPAD9) return static_cast<Key>('0' + (code - VK_NUMPAD0));
    const bool named = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') ||
                       (code >= VK_F1 && code <= VK_F24) || (code >= VK_SPACE && code <= VK_DOWN) ||
                       code == VK_BACK || code == VK_TAB || code == VK_RETURN || code == VK_ESCAPE ||
                       code == VK_INSERT || code == VK_DELETE;
    return named ? static_cast<Key>(code) : Key::none;
}

KeyDown pressed(WPARAM code) {
    KeyDown key{keyOf(code), isHeld(VK_SHIFT), isHeld(VK_CONTROL), isHeld(VK_MENU)};
    // AltGr is Ctrl and Alt together, and makes characters.
    if (key.ctrl && key.alt) key.ctrl = key.alt = false;
    return key;
}

const ui::Control* controlOf(const ControlView* view) {
    return view == nullptr ? nullptr : &view->control();
}

/// @param unit of a character in UTF-16; Windows makes characters of some keys, too
KeyUse useOfCharacter(const ui::Control& control, wchar_t unit) {
    if (unit >= 32 && unit != 127) return ui::characterUse(control);
    if (ui::as<ui::TextBox>(&control) == nullptr) return KeyUse::nobody;
    switch (unit) {
    case L'\b':
        return ui::keyUse(ui::keyTraitsOf(&control), {.key = Key::backspace}) == KeyUse::rules
                   ? KeyUse::nobody
                   : KeyUse::native;
    case L'\t':
    case L'\r':
    case L'\n':
    case 27:
    case 127:
        return KeyUse::nobody;
    default:
        return KeyUse::native; // Ctrl with a letter: copying, undoing
    }
}

} // namespace

KeyUse Keyboard::useOf(const ControlView* view, const KeyDown& key) {
    // An open list gets all keys but the one that goes on.
    if (view != nullptr && view->hasOpenList() && key.key != Key::tab) return KeyUse::native;
    return ui::keyUse(ui::keyTraitsOf(controlOf(view)), key);
}

bool Keyboard::handle(ControlView* view, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return down(view, wParam, lParam);
    case WM_KEYUP:
    case WM_SYSKEYUP:
        return up(view, wParam);
    case WM_CHAR:
        return character(view, static_cast<wchar_t>(wParam));
    case WM_SYSCHAR:
        // Alt and the space bar open the window's own menu.
        if (wParam <= VK_SPACE) return false;
        tell_(view, ui::AccessKeyEvent{static_cast<char32_t>(wParam)});
        return true;
    default:
        return false;
    }
}

void Keyboard::fetched(UINT message) {
    const bool buttonOrWheel = (message > WM_MOUSEMOVE && message <= WM_MOUSEHWHEEL) ||
                               (message > WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
    if (buttonOrWheel) forgetCtrl();
}

bool Keyboard::down(ControlView* view, WPARAM code, LPARAM details) {
    const bool repeated = (HIWORD(details) & KF_REPEAT) != 0;
    const KeyDown key = pressed(code);
    if (code == VK_CONTROL) {
        if (!repeated) ctrlAlone_ = !key.shift && !isHeld(VK_MENU);
        return false;
    }
    ctrlAlone_ = false;
    if (repeated && ui::actsOnce(ui::keyTraitsOf(controlOf(view)), key.key)) return true;
    const KeyUse use = useOf(view, key);
    if (use == KeyUse::rules && view != nullptr && view->hasOpenList()) view->closeList();
    if (use == KeyUse::rules || use == KeyUse::overheard) {
        tell_(view, ui::KeyDownEvent{key, view != nullptr && key.ctrl ? view->columnWidth() : 0});
    }
    return use == KeyUse::rules || use == KeyUse::nobody;
}

bool Keyboard::up(ControlView* view, WPARAM code) {
    if (code != VK_CONTROL || !ctrlAlone_) return false;
    ctrlAlone_ = false;
    tell_(view, ui::PickKeyEvent{});
    return false;
}

bool Keyboard::character(ControlView* view, wchar_t unit) {
    const KeyUse use = view == nullptr ? KeyUse::nobody : useOfCharacter(view->control(), unit);
    if (use != KeyUse::rules) return use == KeyUse::nobody;
    if (IS_HIGH_SURROGATE(unit)) {
        highSurrogate_ = unit;
        return true;
    }
    char32_t character = unit;
    if (IS_LOW_SURROGATE(unit)) {
        character = 0x10000 + ((static_cast<char32_t>(highSurrogate_) - 0xD800) << 10) + (character - 0xDC00);
    }
    tell_(view, ui::KeyPressEvent{character});
    return true;
}

} // namespace tellurix::windows
