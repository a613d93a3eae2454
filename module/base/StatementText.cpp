#include "module/base/StatementText.h"

#include "module/base/Decimal.h"

#include <algorithm>
#include <cstddef>

namespace tellurix::base {

namespace {

/// Whether the text stays inside the literal that it is put into.
bool staysInLiteral(std::string_view value) {
    for (auto quote = value.find('\''); quote != std::string_view::npos; quote = value.find('\'', quote)) {
        const auto end = std::min(value.find_first_not_of('\'', quote), value.size());
        if ((end - quote) % 2 != 0) return false;
        quote = end;
    }
    return true;
}

bool isName(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isNamePart = [&](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || isDigit(c) || c == '_';
    };
    return !text.empty() && !isDigit(text.front()) && std::all_of(text.begin(), text.end(), isNamePart);
}

/// A value as a message can show it: a pasted page of text is cut, between two characters.
std::string shortened(std::string_view value) {
    constexpr std::size_t longest = 80;
    if (value.size() <= longest) return std::string(value);
    auto end = longest;
    while (end > 0 && (static_cast<unsigned char>(value[end]) & 0xC0U) == 0x80U)
        --end;
    return std::string(value.substr(0, end)) + "…";
}

std::vector<Refused::Sentence> statementMessage(OwnText reason, std::string_view value) {
    std::vector<Refused::Sentence> message = refusedValue(value);
    message.push_back({reason});
    message.push_back({OwnText::nothingSent});
    return message;
}

} // namespace

std::vector<Refused::Sentence> refusedValue(std::string_view value, const std::string& label) {
    if (label.empty() && value.empty()) return {};
    if (label.empty()) return {{OwnText::refusedValue, {shortened(value)}}};
    if (value.empty()) return {{OwnText::emptyField, {label}}};
    return {{OwnText::refusedInField, {label, shortened(value)}}};
}

StatementError::StatementError(OwnText reason, std::string statement, std::string value)
    : Refused(statementMessage(reason, value)),
      reason_(reason),
      statement_(std::move(statement)),
      value_(std::move(value)) {}

StatementText& StatementText::fixed(std::string_view text) {
    text_ += text;
    return *this;
}

StatementText& StatementText::number(std::string_view typed) {
    std::string plain(typed);
    std::replace(plain.begin(), plain.end(), ',', '.');
    if (!isPlainNumber(plain)) refuse(typed, typed.empty() ? OwnText::numberMissing : OwnText::noPlainNumber);
    // Two minus signs in a row would turn the rest of the line into a comment.
    if (text_.ends_with('-') && plain.starts_with('-')) text_ += ' ';
    text_ += plain;
    return *this;
}

StatementText& StatementText::quoted(std::string_view value) {
    text_ += '\'';
    for (const char character : value)
        text_.append(character == '\'' ? 2 : 1, character);
    text_ += '\'';
    return *this;
}

StatementText& StatementText::quotedAsItStands(std::string_view value) {
    return fixed("'").insideLiteral(value).fixed("'");
}

StatementText& StatementText::insideLiteral(std::string_view value) {
    if (!staysInLiteral(value)) refuse(value, OwnText::textWithApostrophe);
    return fixed(value);
}

StatementText& StatementText::insideInnerLiteral(std::string_view value) {
    if (value.find('\'') != std::string_view::npos) refuse(value, OwnText::textWithApostrophe);
    return fixed(value);
}

StatementText& StatementText::identifier(std::string_view name) {
    if (!isName(name)) refuse(name, OwnText::noName);
    return fixed(name);
}

std::string StatementText::text() const {
    if (refusal_) {
        throw StatementError(*refusal_, text_, refusedValue_);
    }
    return text_;
}

void StatementText::refuse(std::string_view value, OwnText reason) {
    if (refusal_) return;
    refusal_ = reason;
    refusedValue_ = value;
}

} // namespace tellurix::base
