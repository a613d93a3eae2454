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

void TextBox::edited(std::string text, int selectionStart, int selectionLength) {
    text_ = std::move(text);
    selectionStart_ = selectionStart;
    selectionLength_ = selectionLength;
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
