#pragma once

#include "module/base/Locale.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tellurix::lines {

/// The selection value: the text of `SELEKTION_VALUE`, which says to which timber a line applies.
///
/// The quick selection writes and reads one fixed form of it, a run of conditions in the order of
/// the attributes: "83 IN ('FI', 'KI') ;94 IN (4.5, 5) ;". The host's selection dialog may write
/// any other form, of which the quick selection shows no part and which it never changes unasked.

/// The attributes of timber that the quick selection knows.
enum class Attribute { species, sort, quality, strength, length };
inline constexpr std::size_t attributeCount = 5;

/// The number of an attribute in a selection value.
constexpr int codeOf(Attribute attribute) {
    constexpr std::array<int, attributeCount> codes{83, 87, 90, 93, 94};
    return codes[static_cast<std::size_t>(attribute)];
}

/// What stands in the five boxes of the quick selection: for each attribute the entries as they are
/// typed, "FI,KI" or "4.5,5"; empty for no restriction.
struct QuickSelection {
    std::array<std::string, attributeCount> lists;

    std::string& operator[](Attribute attribute) { return lists[static_cast<std::size_t>(attribute)]; }
    const std::string& operator[](Attribute attribute) const {
        return lists[static_cast<std::size_t>(attribute)];
    }
    friend bool operator==(const QuickSelection&, const QuickSelection&) = default;
};

/// A typed list with its entries quoted, each quote doubled for an SQL literal: "FI, KI" becomes
/// "''FI'', ''KI''". Blanks behind a comma go, those in front of one stay.
std::string quoteList(std::string_view typed);

/// What a typed list of lengths keeps: the numbers, with a point and ", " between them. The list
/// is cut at every comma, so "4,5" is the two lengths 4 and 5 in every locale; decimals are typed
/// with a point.
std::string lengthsIn(std::string_view typed, const base::Locale& locale);

/// The selection value of the five lists, with each quote doubled: what stands between the single
/// quotes of a statement. A quote typed into an entry is not escaped; the statement refuses it.
/// @param selection with its lengths as `lengthsIn` leaves them
/// @return empty when all five are
std::string selectionLiteral(const QuickSelection& selection);

/// The list of one stored condition as it is typed: "83 IN ('FI', 'KI') " becomes "FI,KI". A text
/// without parentheses comes back unchanged.
std::string extractList(std::string_view condition);

/// The five lists of a stored value. All are empty when any condition has another form.
QuickSelection readSelection(std::string_view value);

/// Whether a stored value says anything: whether something stands before its first ";".
bool hasSelection(std::string_view value);

} // namespace tellurix::lines
