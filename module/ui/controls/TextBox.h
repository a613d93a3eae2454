#pragma once

#include "module/base/own_text.h"
#include "module/ui/controls/Control.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tellurix::ui {

/// A box to type text into. Positions and lengths count characters.
///
/// `tag` is a second text beside the shown one that the user does not see: lookup boxes keep the
/// database key of their value in it, empty for none.
class TextBox final : public Control {
public:
    static constexpr ControlKind ownKind = ControlKind::textBox;

    /// @param width the room for how many average characters
    TextBox(Form& form, std::string name, int width = 20) : Control(form, std::move(name)), width_(width) {}

    ControlKind kind() const override { return ownKind; }

    const std::string& text() const;
    /// Shows a text; the caret goes behind it. Does not call `onChange`: that tells what the user did. An
    /// error was about another text.
    void setText(std::string text);
    /// As `setText`, for a value as it was read: the user has not touched it.
    void show(std::string text);
    /// Whether the user has typed, pasted or taken out something since `show`. A number is shown with
    /// fewer decimals than it has: only this tells whether what stands there was meant.
    bool touched() const { return touched_; }
    const std::string& tag() const { return tag_; }
    void setTag(std::string tag) { tag_ = std::move(tag); }

    /// A locked box shows its text and can be read and copied, not changed.
    bool locked() const { return locked_; }
    void setLocked(bool locked) { change(locked_, locked); }
    /// Whether the user can change the text at the moment.
    bool changeable() const { return usable() && !locked_; }
    int width() const { return width_; }
    /// How many lines are shown; more than one makes it a box for longer texts with line breaks.
    int lines() const { return lines_; }
    void setLines(int lines) { change(lines_, lines); }
    /// Greatest number of characters that can be typed, 0 for no limit.
    int maxLength() const { return maxLength_; }
    void setMaxLength(int characters) { change(maxLength_, characters); }
    bool rightAligned() const { return rightAligned_; }
    void setRightAligned(bool right) { change(rightAligned_, right); }

    /// What it takes, in words that are shown when something is typed that it does not take.
    struct Takes {
        base::OwnText text;
        std::vector<std::string> values = {};
    };
    const std::optional<Takes>& takes() const { return takes_; }
    void setTakes(Takes what) { takes_ = std::move(what); }
    /// Something typed was not taken: the box flashes, and the text is shown under it until something is, or
    /// the box is left.
    void refuse(std::string text);
    const std::string& refusal() const { return refusal_; }
    /// Counts them: each is a flash.
    int refusals() const { return refusals_; }
    void left() override;

    int selectionStart() const { return selectionStart_; }
    int selectionLength() const { return selectionLength_; }
    void select(int start, int length);
    void selectAll();

    /// Whether the screen looks at each key or character. A display edits such a box by itself only
    /// to take something out; what comes in it says character by character.
    bool filtered() const { return onKeyPress || onKeyDown; }
    /// Whether a character is text for this box: only one of several lines takes a line end.
    bool isText(char32_t character) const { return character >= 32 || (character == U'\n' && lines_ > 1); }

    /// Takes over what a display's own editing made of the text.
    /// @return false when that cannot stand as it is, and nothing changed: something came in that the
    ///         filter has not seen, that is no text for this box, or that is too much
    [[nodiscard]] bool edited(std::string text, int selectionStart, int selectionLength);
    /// Types text in place of the selection, as far as `maxLength` allows.
    /// @return whether anything came in
    bool typeOver(std::string_view typed);
    /// What would stand in the box after typing `typed` in place of the selection.
    std::string textAfterTyping(std::string_view typed) const;
    /// How many characters can be typed in place of the selection; as many as one likes without a limit.
    std::size_t room() const;
    /// Takes back what the user did in one go: typed, or took out, without going elsewhere in between.
    /// @return whether there was anything to take back
    bool undo();
    /// Removes the selection, or the character before (`-1`) or behind (`+1`) the caret.
    /// @return whether there was anything to remove
    bool erase(int direction);

    /// A filter for typed characters: may replace the character, or swallow it by setting it to 0.
    Handlers<void(char32_t&)> onKeyPress;
    /// Puts a pasted text into the form in which it would be typed, before its characters go through
    /// the filter: "1.234,50" into "1234,50".
    std::function<std::string(const std::string&)> onPaste;
    /// The user changed the text.
    Handlers<void()> onChange;
    /// Opens the box's picker; set for boxes that have one. The displays then offer Ctrl, F4 and a
    /// small button for it.
    Handlers<void()> onPick;
    /// Name of the picture on that button: "more" for a list, "calendar".
    const std::string& pickPicture() const { return pickPicture_; }
    void setPickPicture(std::string picture) { change(pickPicture_, std::move(picture)); }

private:
    /// The box as it was before something was done in one go.
    struct Before {
        std::u32string characters;
        int selectionStart;
        int selectionLength;
    };
    int length() const { return static_cast<int>(characters_.size()); }
    /// The user is about to change the text.
    void remember();
    /// Puts characters in place of the selection; the caret goes behind them.
    void replaceSelection(std::u32string_view characters);

    std::u32string characters_;
    /// The same in UTF-8, made when it is asked for: a long text is typed character by character.
    mutable std::string text_;
    mutable bool textIsOld_ = false;
    std::string tag_;
    std::string pickPicture_ = "more";
    int width_;
    int lines_ = 1;
    int maxLength_ = 0;
    int selectionStart_ = 0;
    int selectionLength_ = 0;
    std::optional<Takes> takes_;
    std::string refusal_;
    int refusals_ = 0;
    std::vector<Before> befores_;
    bool inOneGo_ = false;
    bool touched_ = false;
    bool locked_ = false;
    bool rightAligned_ = false;
};

} // namespace tellurix::ui
