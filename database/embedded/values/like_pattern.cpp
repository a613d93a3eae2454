#include "database/embedded/values/like_pattern.h"

#include "database/embedded/values/Collation.h"
#include "database/embedded/values/utf8.h"

namespace tellurix::embedded {

namespace {

/// Walks over the characters of a UTF-8 text, each made lower case.
class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    bool atEnd() const { return index_ >= text_.size(); }
    std::size_t index() const { return index_; }
    void moveTo(std::size_t index) { index_ = index; }

    char32_t next() { return foldCharacter(nextCharacter(text_, index_)); }

private:
    std::string_view text_;
    std::size_t index_ = 0;
};

class Matcher {
public:
    Matcher(std::string_view text, std::string_view pattern, char32_t escape, const Collation& collation)
        : text_(text), pattern_(pattern), escape_(escape), collation_(collation) {}

    /// Goes back to the last % whenever the rest does not fit: no pattern takes more than
    /// length of text × length of pattern steps.
    bool run() {
        bool anyBefore = false;
        std::size_t patternAfterAny = 0;
        std::size_t textAtAny = 0;
        for (;;) {
            if (!pattern_.atEnd()) {
                const std::size_t patternStart = pattern_.index();
                const char32_t wanted = pattern_.next();
                if (wanted == U'%' && wanted != escape_) {
                    anyBefore = true;
                    patternAfterAny = pattern_.index();
                    textAtAny = text_.index();
                    continue;
                }
                if (!text_.atEnd()) {
                    pattern_.moveTo(patternStart);
                    if (matchOne(text_.next())) continue;
                }
            } else if (text_.atEnd()) {
                return true;
            }
            if (!anyBefore) return false;
            text_.moveTo(textAtAny);
            if (text_.atEnd()) return false;
            text_.next();
            textAtAny = text_.index();
            pattern_.moveTo(patternAfterAny);
        }
    }

private:
    bool matchOne(char32_t character) {
        const char32_t wanted = pattern_.next();
        if (escape_ != 0 && wanted == escape_) return !pattern_.atEnd() && pattern_.next() == character;
        if (wanted == U'_') return true;
        if (wanted == U'[') return matchSet(character);
        return wanted == character;
    }

    bool matchSet(char32_t character) {
        bool negated = false;
        bool found = false;
        bool first = true;
        while (!pattern_.atEnd()) {
            char32_t low = pattern_.next();
            if (first && low == U'^') {
                negated = true;
                first = false;
                continue;
            }
            if (low == U']') return found != negated;
            first = false;
            if (escape_ != 0 && low == escape_ && !pattern_.atEnd()) low = pattern_.next();
            found = matchRange(character, low) || found;
        }
        return false; // a set that does not end matches nothing, as on the server
    }

    bool matchRange(char32_t character, char32_t low) {
        const std::size_t afterLow = pattern_.index();
        if (!pattern_.atEnd() && pattern_.next() == U'-' && !pattern_.atEnd()) {
            const char32_t high = pattern_.next();
            if (high != U']') return compare(low, character) <= 0 && compare(character, high) <= 0;
        }
        pattern_.moveTo(afterLow);
        return low == character;
    }

    int compare(char32_t left, char32_t right) const {
        std::string leftText;
        std::string rightText;
        appendCharacter(leftText, left);
        appendCharacter(rightText, right);
        return collation_.compare(leftText, rightText);
    }

    Cursor text_;
    Cursor pattern_;
    char32_t escape_;
    const Collation& collation_;
};

} // namespace

bool matchesLike(std::string_view text, std::string_view pattern, char32_t escape,
                 const Collation& collation) {
    return Matcher(text, pattern, escape, collation).run();
}

} // namespace tellurix::embedded
