#pragma once

#include "standin/services/selection/SelectionExpression.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tellurix::standin {

/// A selection while the user changes it: its conditions, the one that is being edited, and what that
/// one held on the way. It may say things that no finished selection can, such as a range without an end.
class SelectionDraft {
public:
    static constexpr int none = -1;

    /// Why a selection cannot be taken over.
    struct Problem {
        int position = none;
        std::string word = {};  ///< of `SelectionWords`, with a place for the value
        std::string value = {}; ///< what it is about; may be empty
    };

    explicit SelectionDraft(SelectionExpression expression) : expression_(std::move(expression)) {}

    const SelectionExpression& expression() const { return expression_; }
    /// @param position from 0, or none; a condition edited before keeps nothing but its values
    void edit(int position);
    int position() const { return position_; }
    /// The condition that is being edited with the word before it, or null.
    const SelectionTerm* current() const;

    /// Adds a condition without values at the end, and edits it.
    void add();
    /// Removes the condition that is being edited.
    void remove();
    /// What is done to the condition that is being edited; nothing where there is none.
    void joinByOr(bool isOr);
    /// Another attribute or comparison. The values that it had before under the same attribute and with
    /// as many limits come back.
    void setAttribute(TimberAttribute attribute);
    void setComparison(SelectionOperator comparison);
    void setValues(std::vector<std::string> values);

    /// The first condition that is not finished.
    std::optional<Problem> problem() const;

private:
    SelectionTerm* edited();
    void keepValues(const SelectionCondition& condition);
    void restoreValues(SelectionCondition& condition) const;

    SelectionExpression expression_;
    int position_ = none;
    /// By attribute and number of limits: the arrow keys lead through attributes and comparisons that are
    /// not meant.
    std::map<std::pair<TimberAttribute, std::size_t>, std::vector<std::string>> held_;
};

bool hasLowerLimit(SelectionOperator comparison);
bool hasUpperLimit(SelectionOperator comparison);
/// Those that make sense for an attribute, in the order in which they are offered.
std::vector<SelectionOperator> comparisonsOf(TimberAttribute attribute);

/// A length as a selection stores it: with a point, and without needless digits. What is no number stays
/// as it was typed.
std::string storedLength(const std::string& typed);
/// Lengths separated by blanks, semicolons and commas.
/// @param decimal the user's decimal character: where it is a comma, "4,5" is one length, and "4, 5" two
std::vector<std::string> storedLengths(const std::string& typed, char decimal);

} // namespace tellurix::standin
