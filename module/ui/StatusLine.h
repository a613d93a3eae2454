#pragma once

#include <functional>
#include <string>

namespace tellurix::ui {

/// The last line of a window: it says what the last thing done has come to ("Gespeichert"), and can offer
/// to do one thing about it ("Rückgängig"). It asks nothing and never has the focus.
class StatusLine {
public:
    /// The newest text takes the place of the former, and takes an offer away.
    void say(std::string text);
    /// @param action caption of the offer, with "&" before its access key: that is for letters that no
    /// control
    ///        of the screen has, whose own keys go first
    /// @param act is done once; where it fails the offer stays
    void say(std::string text, std::string action, std::function<void()> act);
    /// Says nothing any more.
    void clear() { say({}); }

    /// What is so at the moment, for as long as nothing else is said; empty for nothing.
    void keep(std::string standing);

    /// The user goes on typing: what was said is about what was before. An offer stays.
    void goOn() {
        if (action_.empty() && !text_.empty()) clear();
    }

    const std::string& text() const { return text_.empty() ? standing_ : text_; }
    /// Empty without an offer.
    const std::string& action() const { return action_; }
    /// Does what is offered. The offer is gone then, and the text too, unless something new was said.
    void act();

    bool dirty() const { return dirty_; }
    /// For displays: it has been drawn as it is now.
    void drawn() { dirty_ = false; }

private:
    std::string text_;
    std::string standing_;
    std::string action_;
    std::function<void()> act_;
    int said_ = 0; ///< how many texts there were
    bool dirty_ = true;
};

} // namespace tellurix::ui
