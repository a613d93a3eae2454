#include "ui/TextBox.h"

#include "common/text.h"

#include <algorithm>

namespace tellurix::ui {

using common::decodeUtf8;
using common::encodeUtf8;

namespace {

int lengthOf(const std::string& text) {
    return static_cast<int>(decodeUtf8(text).size());
}

/// A text as displays show it: every line end is one character, or in a box of one line none.
std::u32string shownText(const std::string& text, bool severalLines) {
    std::u32string shown = decodeUtf8(text);
    std::erase_if(shown, [severalLines](char32_t c) { return c == U'\r' || (c == U'\n' && !severalLines); });
    return shown;
}

/// Whether a text is another one with one stretch taken out.
bool onlyRemoves(std::u32string_view before, std::u32string_view after) {
    if (after.size() > before.size()) return false;
    const auto rest = std::ranges::mismatch(after, before).in1;
    return before.ends_with(std::u32string_view{rest, after.end()});
}

} // namespace

void TextBox::setText(std::string text) {
    if (text == text_) return;
    const int length = lengthOf(text);
    change(text_, std::move(text));
    select(length, 0);
}

void TextBox::select(int start, int length) {
    const int end = lengthOf(text_);
    const int from = std::clamp(start, 0, end);
    change(selectionStart_, from);
    change(selectionLength_, std::clamp(length, 0, end - from));
}

void TextBox::selectAll() {
    select(0, lengthOf(text_));
    // The display may have moved its own caret since the last drawing.
    markDirty();
}

bool TextBox::edited(std::string text, int selectionStart, int selectionLength) {
    const std::u32string after = decodeUtf8(text);
    if (!onlyRemoves(shownText(text_, lines_ > 1), after)) {
        const bool fits = maxLength_ == 0 || after.size() <= static_cast<std::size_t>(maxLength_);
        const auto isText = [this](char32_t character) { return takes(character); };
        if (filtered() || !fits || !std::ranges::all_of(after, isText)) return false;
    }
    text_ = std::move(text);
    const int end = static_cast<int>(after.size());
    selectionStart_ = std::clamp(selectionStart, 0, end);
    selectionLength_ = std::clamp(selectionLength, 0, end - selectionStart_);
    return true;
}

std::string TextBox::textAfterTyping(std::string_view typed) const {
    std::u32string characters = decodeUtf8(text_);
    const auto start = std::min(static_cast<std::size_t>(selectionStart_), characters.size());
    characters.replace(start, static_cast<std::size_t>(selectionLength_), decodeUtf8(typed));
    return encodeUtf8(characters);
}

void TextBox::typeOver(std::string_view typed) {
    std::u32string insertion = decodeUtf8(typed);
    if (maxLength_ > 0) {
        const int room = maxLength_ - (lengthOf(text_) - selectionLength_);
        insertion.resize(std::min(insertion.size(), static_cast<std::size_t>(std::max(room, 0))));
        if (insertion.empty()) return;
    }
    const int caret = selectionStart_ + static_cast<int>(insertion.size());
    change(text_, textAfterTyping(encodeUtf8(insertion)));
    select(caret, 0);
}

void TextBox::erase(int direction) {
    if (selectionLength_ == 0) {
        if (direction < 0) {
            if (selectionStart_ == 0) return;
            --selectionStart_;
        } else if (selectionStart_ == lengthOf(text_)) {
            return;
        }
        selectionLength_ = 1;
    }
    const int caret = selectionStart_;
    change(text_, textAfterTyping(""));
    select(caret, 0);
}

} // namespace tellurix::ui
