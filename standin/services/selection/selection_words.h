#pragma once

#include "module/base/Locale.h"
#include "standin/services/selection/SelectionExpression.h"
#include "standin/services/selection/codes/ChoiceList.h"
#include "standin/services/texts/Localizer.h"

#include <string>
#include <string_view>

namespace tellurix::standin {

/// How a selection is told to the user, in his language and with his decimal character.
class SelectionWords {
public:
    SelectionWords(const Localizer& localizer, const host::TlxVar& session, const base::Locale& locale)
        : localizer_(localizer), session_(session), locale_(locale) {}

    std::string attribute(TimberAttribute attribute) const;
    std::string comparison(SelectionOperator comparison) const;
    std::string joiner(bool isOr) const;
    /// A value as it is typed: a stored number with the user's decimal character.
    std::string value(TimberAttribute attribute, const std::string& stored) const;
    /// The values of a condition in one text.
    std::string values(const SelectionCondition& condition) const;
    /// The whole selection as a sentence, with brackets where "and" and "or" meet.
    std::string sentence(const SelectionExpression& expression) const;

    /// A text of the dialogs; `named("incomplete")` is the text "selection.incomplete".
    std::string named(std::string_view key) const;
    ChoiceList::Captions choiceCaptions() const;
    const base::Locale& locale() const { return locale_; }

private:
    std::string clause(const SelectionCondition& condition) const;

    const Localizer& localizer_;
    const host::TlxVar& session_;
    base::Locale locale_;
};

} // namespace tellurix::standin
