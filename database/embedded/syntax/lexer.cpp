#include "database/embedded/syntax/lexer.h"

#include "database/embedded/syntax/keywords.h"
#include "database/embedded/values/Fault.h"

#include <string>

namespace tellurix::embedded {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isNameStart(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           character == '_' || static_cast<unsigned char>(character) >= 0x80;
}

bool isNamePart(char character) {
    return isNameStart(character) || isDigit(character) || character == '$' || character == '#' ||
           character == '@';
}

bool isBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

class Lexer {
public:
    Lexer(std::string_view text, Arena& arena) : text_(text), arena_(arena) {}

    std::vector<Token> run() {
        std::vector<Token> tokens;
        constexpr std::size_t bytesPerToken = 4;
        tokens.reserve(text_.size() / bytesPerToken + 2);
        for (;;) {
            skipBlanksAndComments();
            tokens.push_back(next());
            if (tokens.back().kind == TokenKind::end) return tokens;
        }
    }

private:
    char at(std::size_t index) const { return index < text_.size() ? text_[index] : '\0'; }

    void skipBlanksAndComments() {
        for (;;) {
            while (isBlank(at(position_)))
                ++position_;
            if (at(position_) == '-' && at(position_ + 1) == '-') {
                while (position_ < text_.size() && text_[position_] != '\n' && text_[position_] != '\r')
                    ++position_;
            } else if (at(position_) == '/' && at(position_ + 1) == '*') {
                skipBlockComment();
            } else {
                return;
            }
        }
    }

    /// Comments of this kind nest in T-SQL.
    void skipBlockComment() {
        const std::size_t start = position_;
        int depth = 0;
        do {
            if (position_ + 1 >= text_.size()) failSyntax("The comment that starts here does not end", start);
            if (text_[position_] == '/' && text_[position_ + 1] == '*') {
                ++depth;
                position_ += 2;
            } else if (text_[position_] == '*' && text_[position_ + 1] == '/') {
                --depth;
                position_ += 2;
            } else {
                ++position_;
            }
        } while (depth > 0);
    }

    Token next() {
        Token token;
        token.position = position_;
        if (position_ < text_.size()) read(token);
        token.length = position_ - token.position;
        return token;
    }

    void read(Token& token) {
        const char first = text_[position_];
        const char second = at(position_ + 1);
        if (first == '\'') return readQuoted(token, TokenKind::text, '\'', position_);
        if ((first == 'N' || first == 'n') && second == '\'') {
            ++position_;
            return readQuoted(token, TokenKind::text, '\'', position_);
        }
        if (first == '[') return readQuoted(token, TokenKind::name, ']', position_);
        if (first == '"') return readQuoted(token, TokenKind::name, '"', position_);
        if (isNameStart(first)) {
            readWord(token, TokenKind::name);
            token.keyword = keywordOf(token.text);
            return;
        }
        if (first == '@' && (isNameStart(second) || second == '@'))
            return readWord(token, TokenKind::variable);
        if (isDigit(first) || (first == '.' && isDigit(second))) return readNumber(token);
        readSymbol(token, first, second);
    }

    void readWord(Token& token, TokenKind kind) {
        const std::size_t start = position_++;
        while (isNamePart(at(position_)))
            ++position_;
        token.kind = kind;
        token.text = text_.substr(start, position_ - start);
    }

    /// A literal or a bracketed name; its closing character stands for itself when it is doubled.
    void readQuoted(Token& token, TokenKind kind, char close, std::size_t open) {
        token.kind = kind;
        const std::size_t start = open + 1;
        std::size_t end = text_.find(close, start);
        while (end != std::string_view::npos && at(end + 1) == close) {
            token.doubledQuotes = true;
            end = text_.find(close, end + 2);
        }
        if (end == std::string_view::npos)
            failSyntax(kind == TokenKind::text ? "The text that starts here does not end"
                                               : "The bracketed name that starts here does not end",
                       token.position);
        token.text = text_.substr(start, end - start);
        position_ = end + 1;
        if (token.doubledQuotes) token.text = withSingleQuotes(token.text, close);
        if (kind == TokenKind::name && token.text.empty()) failSyntax("A name is empty", token.position);
        if (token.text.find('\0') != std::string_view::npos)
            failSyntax("A text must not hold the character 0", token.position);
    }

    std::string_view withSingleQuotes(std::string_view text, char quote) {
        char* const room = arena_.textRoom(text.size());
        std::size_t count = 0;
        for (std::size_t index = 0; index < text.size(); ++index) {
            room[count++] = text[index];
            if (text[index] == quote) ++index;
        }
        return {room, count};
    }

    void readNumber(Token& token) {
        const std::size_t start = position_;
        token.kind = TokenKind::integer;
        skipDigits();
        if (at(position_) == '.') {
            token.kind = TokenKind::decimal;
            ++position_;
            skipDigits();
        }
        if (at(position_) == 'e' || at(position_) == 'E') {
            token.kind = TokenKind::floating;
            ++position_;
            if (at(position_) == '+' || at(position_) == '-') ++position_;
            skipDigits();
        }
        token.text = text_.substr(start, position_ - start);
    }

    void skipDigits() {
        while (isDigit(at(position_)))
            ++position_;
    }

    void readSymbol(Token& token, char first, char second) {
        token.kind = TokenKind::symbol;
        token.symbol = symbolOf(first, second);
        if (token.symbol == Symbol::none)
            failSyntax("The character \"" + std::string(1, first) + "\" means nothing here", position_);
        const bool pair = token.symbol == Symbol::notEqual || token.symbol == Symbol::lessOrEqual ||
                          token.symbol == Symbol::greaterOrEqual;
        token.text = text_.substr(position_, pair ? 2 : 1);
        position_ += token.text.size();
    }

    static Symbol symbolOf(char first, char second) {
        switch (first) {
        case '(':
            return Symbol::openParenthesis;
        case ')':
            return Symbol::closeParenthesis;
        case ',':
            return Symbol::comma;
        case '.':
            return Symbol::point;
        case ';':
            return Symbol::semicolon;
        case '+':
            return Symbol::plus;
        case '-':
            return Symbol::minus;
        case '*':
            return Symbol::star;
        case '/':
            return Symbol::slash;
        case '%':
            return Symbol::percent;
        case '=':
            return Symbol::equal;
        case '<':
            return second == '>' ? Symbol::notEqual : second == '=' ? Symbol::lessOrEqual : Symbol::less;
        case '>':
            return second == '=' ? Symbol::greaterOrEqual : Symbol::greater;
        case '!':
            return second == '=' ? Symbol::notEqual : Symbol::none;
        default:
            return Symbol::none;
        }
    }

    std::string_view text_;
    Arena& arena_;
    std::size_t position_ = 0;
};

} // namespace

std::vector<Token> tokenize(std::string_view statement, Arena& arena) {
    return Lexer(statement, arena).run();
}

} // namespace tellurix::embedded
