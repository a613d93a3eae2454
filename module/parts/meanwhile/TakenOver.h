#pragma once

#include "module/base/own_text.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::parts {

/// The fields that came from somebody else.
class TakenOver {
public:
    struct Field {
        std::string name;        ///< what the user knows it by
        std::string before = {}; ///< what the user has seen in it, as a text; empty for nothing
        std::string now = {};
        bool whole = false; ///< a line of several fields, which is named without its texts
        /// Shows in the field that it came from somebody else.
        std::function<void()> mark = {};
    };

    /// Takes a field up, each once, and marks it.
    void add(Field field);
    void clear() { fields_.clear(); }
    /// Empty for none. Of many only the first are named.
    std::string sentence(std::string_view language) const;
    /// What the status line says after saving. The fields, which have been loaded again since, are marked
    /// once more: now the user reads of them.
    std::string told(base::OwnText saved, const std::string& language) const;

private:
    std::vector<Field> fields_;
};

} // namespace tellurix::parts
