#pragma once

namespace tellurix::ui {

/// The keys that the rules of input know, by the codes that key handlers have always used. Letters
/// and digits have the code of their capital character.
enum class Key : int {
    none = 0,
    backspace = 8,
    tab = 9,
    enter = 13,
    shift = 16,
    ctrl = 17,
    alt = 18,
    escape = 27,
    space = 32,
    pageUp = 33,
    pageDown = 34,
    end = 35,
    home = 36,
    left = 37,
    up = 38,
    right = 39,
    down = 40,
    insert = 45,
    del = 46,
    f1 = 112,
    f2 = 113,
    f4 = 115
};

/// A key that went down, with the modifiers held at that moment.
struct KeyDown {
    Key key = Key::none;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

} // namespace tellurix::ui
