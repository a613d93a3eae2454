#include "module/ui/controls/TextBox.h"

#include "module/base/text.h"

#include <algorithm>
#include <utility>

namespace tellurix::ui {

using base::decodeUtf8;
using base::encodeUtf8;

namespace {

/// A text as displays show it: every line end is one character, or in a box of one line none.
std::u32string shownText(std::u32string text, bool severalLines) {
    std::erase_if(text, [severalLines](char32_t c) { return c == U'\r' || (c == U'\n' && !severalLines); });
    return text;
}

/// Whether a text is another one with one stretch taken out.
bool onlyRemoves(std::u32string_view before, std::u32string_view after) {
    if (after.size() > before.size()) return false;
    const auto rest = std::ranges::mismatch(after, before).in1;
    return before.ends_with(std::u32string_view{rest, after.end()});
}

} // namespace

const std::string& TextBox::text() const {
    if (textIsOld_) {
        text_ = encodeUtf8(characters_);
        textIsOld_ = false;
    }
    return text_;
}

void TextBox::setText(std::string text) {
    befores_.clear();
    inOneGo_ = false;
    if (text == this->text()) return;
    setError({});
    characters_ = decodeUtf8(text);
    text_ = std::move(text);
    markDirty();
    select(length(), 0);
}

void TextBox::show(std::string text) {
    setText(std::move(text));
    setError({});
    change(refusal_, std::string{});
    touched_ = false;
}

void TextBox::refuse(std::string text) {
    refusal_ = std::move(text);
    ++refusals_;
    markDirty();
}

void TextBox::left() {
    Control::left();
    change(refusal_, std::string{});
}

std::size_t TextBox::room() const {
    if (maxLength_ == 0) return std::u32string::npos;
    return static_cast<std::size_t>(std::max(maxLength_ - (length() - selectionLength_), 0));
}

void TextBox::remember() {
    touched_ = true;
    noteChange();
    change(refusal_, std::string{});
    if (std::exchange(inOneGo_, true)) return;
    constexpr std::size_t kept = 50;
    if (befores_.size() == kept) befores_.erase(befores_.begin());
    befores_.push_back({characters_, selectionStart_, selectionLength_});
}

bool TextBox::undo() {
    if (befores_.empty()) return false;
    Before before = std::move(befores_.back());
    befores_.pop_back();
    characters_ = std::move(before.characters);
    textIsOld_ = true;
    noteChange();
    change(refusal_, std::string{});
    markDirty();
    select(before.selectionStart, before.selectionLength);
    return true;
}

void TextBox::select(int start, int length) {
    inOneGo_ = false;
    const int end = this->length();
    const int from = std::clamp(start, 0, end);
    change(selectionStart_, from);
    change(selectionLength_, std::clamp(length, 0, end - from));
}

void TextBox::selectAll() {
    select(0, length());
    // The display may have moved its own caret since the last drawing.
    markDirty();
}

bool TextBox::edited(std::string text, int selectionStart, int selectionLength) {
    std::u32string after = decodeUtf8(text);
    const std::u32string before = shownText(characters_, lines_ > 1);
    if (!onlyRemoves(before, after)) {
        const bool fits = maxLength_ == 0 || after.size() <= static_cast<std::size_t>(maxLength_);
        const auto ofText = [this](char32_t character) { return isText(character); };
        if (filtered() || !fits || !std::ranges::all_of(after, ofText)) return false;
    }
    if (after != before) remember();
    characters_ = std::move(after);
    text_ = std::move(text);
    textIsOld_ = false;
    selectionStart_ = std::clamp(selectionStart, 0, length());
    selectionLength_ = std::clamp(selectionLength, 0, length() - selectionStart_);
    return true;
}

std::string TextBox::textAfterTyping(std::string_view typed) const {
    std::u32string characters = characters_;
    characters.replace(static_cast<std::size_t>(selectionStart_), static_cast<std::size_t>(selectionLength_),
                       decodeUtf8(typed));
    return encodeUtf8(characters);
}

void TextBox::replaceSelection(std::u32string_view characters) {
    remember();
    characters_.replace(static_cast<std::size_t>(selectionStart_), static_cast<std::size_t>(selectionLength_),
                        characters);
    textIsOld_ = true;
    markDirty();
    select(selectionStart_ + static_cast<int>(characters.size()), 0);
    inOneGo_ = true;
}

bool TextBox::typeOver(std::string_view typed) {
    std::u32string insertion = decodeUtf8(typed);
    insertion.resize(std::min(insertion.size(), room()));
    if (insertion.empty()) return false;
    replaceSelection(insertion);
    return true;
}

bool TextBox::erase(int direction) {
    if (selectionLength_ == 0) {
        if (direction < 0) {
            if (selectionStart_ == 0) return false;
            --selectionStart_;
        } else if (selectionStart_ == length()) {
            return false;
        }
        selectionLength_ = 1;
    }
    replaceSelection({});
    return true;
}

} // namespace tellurix::ui
