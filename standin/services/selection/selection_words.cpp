#include "standin/services/selection/selection_words.h"

#include "module/base/text.h"

namespace tellurix::standin {

namespace {

std::string_view keyOf(SelectionOperator comparison) {
    switch (comparison) {
    case SelectionOperator::oneOf:
        return "oneOf";
    case SelectionOperator::notOneOf:
        return "notOneOf";
    case SelectionOperator::between:
        return "between";
    case SelectionOperator::atLeast:
        return "atLeast";
    case SelectionOperator::atMost:
        return "atMost";
    }
    return {};
}

} // namespace

std::string SelectionWords::named(std::string_view key) const {
    return localizer_.named("selection." + std::string{key}, session_);
}

std::string SelectionWords::attribute(TimberAttribute attribute) const {
    return named(std::to_string(static_cast<int>(attribute)));
}

std::string SelectionWords::comparison(SelectionOperator comparison) const {
    return named(keyOf(comparison));
}

std::string SelectionWords::joiner(bool isOr) const {
    return named(isOr ? "or" : "and");
}

std::string SelectionWords::value(TimberAttribute attribute, const std::string& stored) const {
    if (!kindOf(attribute).isNumber()) return stored;
    return base::replaceAll(stored, ".", std::string(1, locale_.decimal));
}

std::string SelectionWords::values(const SelectionCondition& condition) const {
    const bool range = condition.comparison == SelectionOperator::between;
    const std::string separator = kindOf(condition.attribute).isNumber() ? "; " : ", ";
    std::string text;
    for (const std::string& stored : condition.values) {
        const std::string shown = value(condition.attribute, stored);
        text += (text.empty() ? "" : range ? " – " : separator) + (shown.empty() ? "…" : shown);
    }
    return text.empty() ? "…" : text;
}

std::string SelectionWords::clause(const SelectionCondition& condition) const {
    const std::string key = "sentence." + std::string{keyOf(condition.comparison)};
    const std::string name = attribute(condition.attribute);
    const auto shown = [&](std::size_t index) {
        const std::string text = index < condition.values.size()
                                     ? value(condition.attribute, condition.values[index])
                                     : std::string{};
        return text.empty() ? std::string{"…"} : text;
    };
    if (condition.comparison == SelectionOperator::between)
        return filled(named(key), {name, shown(0), shown(1)});
    std::string list = shown(0);
    const std::size_t count = condition.values.size();
    for (std::size_t i = 1; i < count; ++i)
        list += (i + 1 == count ? " " + joiner(true) + " " : ", ") + shown(i);
    return filled(named(key), {name, list});
}

std::string SelectionWords::sentence(const SelectionExpression& expression) const {
    if (expression.terms.empty()) return named("everything");
    std::string text;
    std::string alternative;
    bool several = false;
    bool bracketed = false;
    const auto finishAlternative = [&](bool more) {
        if (more) several = true;
        text += bracketed && several ? "(" + alternative + ")" : alternative;
        alternative.clear();
        bracketed = false;
    };
    for (const SelectionTerm& term : expression.terms) {
        if (term.afterOr) {
            finishAlternative(true);
            text += " " + joiner(true) + " ";
        } else if (!alternative.empty()) {
            alternative += " " + joiner(false) + " ";
            bracketed = true;
        }
        alternative += clause(term.condition);
    }
    finishAlternative(false);
    return text;
}

ChoiceList::Captions SelectionWords::choiceCaptions() const {
    return {.code = named("code"), .name = named("name"), .notOffered = named("notOffered")};
}

} // namespace tellurix::standin
