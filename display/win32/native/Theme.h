#pragma once

#include "display/win32/native/native.h"

#include <string>

namespace tellurix::windows {

/// How things look and how large they are: the font and resolution of the system at the moment a window
/// opens, and its colours. All sizes are pixels of that resolution.
class Theme {
public:
    Theme();

    /// Takes over the system's colours, when they have changed.
    void readColours();

    HFONT font() const { return font_; }
    HFONT boldFont() const { return boldFont_; }
    /// Windows' own signs: its "a" is the tick of menus.
    HFONT signFont() const { return signFont_; }
    /// The background inside tab pages, which visual styles give a colour of its own.
    HBRUSH pageBrush() const { return pageBrush_; }
    COLORREF pageColour() const { return pageColour_; }
    /// Text that warns. With high contrast it is the system's own colour.
    COLORREF warningColour() const;

    /// A length that is `pixels` at 96 dots an inch.
    int scaled(int pixels) const { return MulDiv(pixels, dotsPerInch_, 96); }
    int characterWidth() const { return characterWidth_; }
    int textHeight() const { return textHeight_; }
    /// Height of everything that is one line high: boxes, buttons, labels.
    int lineHeight() const { return units(14); }
    /// Least width of a button with words.
    int buttonWidth() const { return MulDiv(50, characterWidth_, 4); }
    /// Height of an item in a list.
    int itemHeight() const { return textHeight_ + scaled(2); }
    /// What a list is wider than its items: its border and its button or scroll bar.
    int listEdges() const { return scaled(30); }
    /// What a box or a cell is wider than its text.
    int textEdges() const { return scaled(10); }
    /// Between what belongs together, between groups of it, and around the content of a window.
    int gap() const { return units(4); }
    int groupGap() const { return units(10); }
    int margin() const { return units(7); }
    /// Room that a caption needs; it is broken into lines of `wrapAt` pixels at most, 0 for never.
    /// @param withMark whether "&" marks an access key in it
    SIZE textSize(const std::string& text, bool withMark, int wrapAt = 0, bool bold = false) const;

private:
    /// Vertical dialog units, which follow the system's font.
    int units(int count) const { return MulDiv(count, textHeight_, 8); }

    int dotsPerInch_;
    GdiObject<HFONT> font_;
    GdiObject<HFONT> boldFont_;
    GdiObject<HFONT> signFont_;
    COLORREF pageColour_;
    GdiObject<HBRUSH> pageBrush_;
    int characterWidth_ = 0;
    int textHeight_ = 0;
};

} // namespace tellurix::windows
