#pragma once

#include "standin/services/selection/timber_attributes.h"

#include <string>
#include <string_view>
#include <vector>

namespace tellurix::standin {

enum class SelectionOperator { oneOf, notOneOf, between, atLeast, atMost };

/// Whether the operator needs values that can be compared by size.
bool isRange(SelectionOperator comparison);

/// One condition on one attribute. Numbers are plain texts, exactly as many digits as were written.
struct SelectionCondition {
    TimberAttribute attribute = TimberAttribute::species;
    SelectionOperator comparison = SelectionOperator::oneOf;
    std::vector<std::string> values; ///< one at least; between has two, at least and at most one

    bool operator==(const SelectionCondition&) const = default;
};

/// A condition with what joins it to the one before: "and" binds closer than "or".
struct SelectionTerm {
    SelectionCondition condition;
    bool afterOr = false; ///< never for the first one

    bool operator==(const SelectionTerm&) const = default;
};

/// To which timber a contract line applies: conditions joined by "and" and "or".
///
/// As a text every condition ends with " ;":
///
///     83 IN ('FI', 'KI') ;94 IN (4.5, 5) ;              the quick form
///     83 NOT IN ('LA') ;94 BETWEEN 4 AND 6 ;            the extended form
///     93 >= '2b' ;OR 87 IN ('L') ;AND 94 <= 6 ;
///
/// Conditions follow each other without a word for "and"; the word may stand there. What the quick
/// selection of the line screens can say is written as it would write it. What only looks so, such
/// as one attribute restricted twice, or a code with a comma in it, is written with the word "AND",
/// because the quick selection would show something else than is meant and leaves such a text alone.
struct SelectionExpression {
    std::vector<SelectionTerm> terms;

    /// Reads a text in either form, in any case of its words.
    /// @throws base::Refused with a German text that names the piece that cannot be read
    static SelectionExpression parse(std::string_view value);

    /// The text in the quick form where that is possible, else in the extended one.
    std::string print() const;

    /// " FROM LOGS WHERE …", what can follow "SELECT LOGS.ID_LOG ". Without any term every log is
    /// taken. A log without a value in an attribute is "not one of" any codes.
    std::string toSql() const;

    bool operator==(const SelectionExpression&) const = default;
};

} // namespace tellurix::standin
