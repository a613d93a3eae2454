#include "standin/services/selection/SelectionExpression.h"

#include "module/base/Decimal.h"
#include "module/base/Refused.h"
#include "module/base/text.h"
#include "standin/services/selection/selection_lexer.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

using base::OwnText;
using Token = SelectionToken;
using Kind = SelectionToken::Kind;

/// Reads one selection value, condition by condition.
class SelectionParser {
public:
    explicit SelectionParser(std::string_view value) : value_(value), tokens_(selectionTokens(value)) {}

    SelectionExpression parse() {
        SelectionExpression expression;
        while (true) {
            while (skip(Kind::symbol, ";")) {
            }
            if (token().kind == Kind::end) return expression;
            pieceStart_ = at_;
            const bool afterOr = skip(Kind::word, "OR");
            if (afterOr && expression.terms.empty()) refuse(OwnText::orWithoutCondition);
            if (!afterOr) skip(Kind::word, "AND");
            expression.terms.push_back({condition(), afterOr});
            if (token().kind != Kind::end && !token().is(Kind::symbol, ";"))
                refuse(OwnText::semicolonMissing);
        }
    }

private:
    const Token& token() const { return tokens_[at_]; }

    bool skip(Kind kind, std::string_view value) {
        if (!token().is(kind, value)) return false;
        ++at_;
        return true;
    }

    void expect(Kind kind, std::string_view value) {
        if (!skip(kind, value)) refuse(OwnText::pieceMissing, value);
    }

    SelectionCondition condition() {
        const AttributeKind& kind = attribute();
        SelectionCondition condition{.attribute = kind.attribute, .values = {}};
        if (skip(Kind::word, "NOT")) {
            condition.comparison = SelectionOperator::notOneOf;
            expect(Kind::word, "IN");
            condition.values = list(kind);
        } else if (skip(Kind::word, "IN")) {
            condition.values = list(kind);
        } else {
            readRange(kind, condition);
        }
        return condition;
    }

    const AttributeKind& attribute() {
        const auto number = token().kind == Kind::number ? base::Decimal::parse(token().value) : std::nullopt;
        const AttributeKind* kind = number && number->scale() == 0 ? findAttribute(number->units()) : nullptr;
        if (kind == nullptr) refuse(OwnText::attributeMissing);
        ++at_;
        return *kind;
    }

    void readRange(const AttributeKind& kind, SelectionCondition& condition) {
        if (skip(Kind::word, "BETWEEN")) {
            condition.comparison = SelectionOperator::between;
        } else if (skip(Kind::symbol, ">=")) {
            condition.comparison = SelectionOperator::atLeast;
        } else if (skip(Kind::symbol, "<=")) {
            condition.comparison = SelectionOperator::atMost;
        } else {
            refuse(OwnText::comparisonMissing);
        }
        if (!kind.ordered) refuse(OwnText::comparedInOrder);
        condition.values.push_back(singleValue(kind));
        if (condition.comparison != SelectionOperator::between) return;
        expect(Kind::word, "AND");
        condition.values.push_back(singleValue(kind));
    }

    std::vector<std::string> list(const AttributeKind& kind) {
        expect(Kind::symbol, "(");
        std::vector<std::string> values;
        do {
            values.push_back(singleValue(kind));
        } while (skip(Kind::symbol, ","));
        expect(Kind::symbol, ")");
        return values;
    }

    std::string singleValue(const AttributeKind& kind) {
        if (kind.isNumber()) {
            const auto number =
                token().kind == Kind::number ? base::Decimal::parse(token().value) : std::nullopt;
            if (!number) refuse(OwnText::selectionNumberMissing);
            ++at_;
            return number->toString();
        }
        if (token().kind != Kind::text) refuse(OwnText::selectionTextMissing);
        return tokens_[at_++].value;
    }

    /// The whole condition in which the reading stopped, without its semicolon.
    std::string piece() const {
        std::size_t end = at_;
        while (tokens_[end].kind != Kind::end && !tokens_[end].is(Kind::symbol, ";"))
            ++end;
        const std::size_t start = tokens_[pieceStart_].start;
        return std::string{base::trim(value_.substr(start, tokens_[end].start - start))};
    }

    [[noreturn]] void refuse(OwnText reason, std::string_view missing = {}) const {
        const std::string_view rest = value_.substr(std::min(token().start, value_.size()));
        std::vector<base::Refused::Sentence> message{{OwnText::selectionUnreadable, {piece()}},
                                                     {reason, {std::string{missing}}}};
        if (rest.empty()) {
            message.push_back({OwnText::atTheEnd});
        } else {
            message.push_back({OwnText::atText, {std::string{rest.substr(0, rest.find(';'))}}});
        }
        throw base::Refused{std::move(message)};
    }

    std::string_view value_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    std::size_t pieceStart_ = 0; ///< token that the present condition begins with
};

} // namespace

SelectionExpression SelectionExpression::parse(std::string_view value) {
    return SelectionParser{value}.parse();
}

} // namespace tellurix::standin
