#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

/// A piece of a selection value that belongs together.
struct SelectionToken {
    enum class Kind {
        number,
        text,   ///< between single quotes; `value` is without them, and with doubled ones undone
        word,   ///< in capital letters, whatever they were
        symbol, ///< ( ) , ; >= <=
        end,
        broken ///< a text without its closing quote, or a character that has no place here
    };
    Kind kind = Kind::end;
    std::string value;
    std::size_t start = 0; ///< byte in the selection value

    bool is(Kind wanted, std::string_view wantedValue) const {
        return kind == wanted && value == wantedValue;
    }
};

/// Takes a selection value apart; the last token is the end.
std::vector<SelectionToken> selectionTokens(std::string_view value);

} // namespace tellurix::standin
