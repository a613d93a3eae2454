#pragma once

#include <string>
#include <vector>

namespace tellurix::ui {

class Form;

struct KeyHint {
    std::string key;
    std::string effect;
    bool operator==(const KeyHint&) const = default;
};

/// What the next key may be where the user is in a window: a few keys, the nearest first and F1, which
/// lists all of them, as the last. They are made from the controls as they are at the moment.
std::vector<KeyHint> keyHints(const Form& form);

} // namespace tellurix::ui
