#pragma once

#include "database/embedded/values/types.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::embedded {

/// A translated expression: its text in SQLite's SQL and what is known of it.
struct Fragment {
    enum class Literal : std::uint8_t { none, exact, text };

    std::string sql = {};
    Type type = {};
    std::size_t position = 0; ///< of the expression in the statement text
    /// A text whose SQL already compares by our collation.
    bool collated = false;
    /// A constant is converted here and not on every row.
    Literal literal = Literal::none;
    std::int64_t units = 0;     ///< of an exact literal, in the scale of its type
    std::string_view text = {}; ///< of a text literal
    /// Of a condition that asks the row itself and no other one: the columns that it depends on.
    std::vector<std::string> rowColumns = {};

    bool isNull() const { return type.kind == TypeKind::null; }
};

Fragment nullFragment(std::size_t position);
/// An exact number that is a constant.
Fragment exactFragment(std::int64_t units, const Type& type, std::size_t position);
/// A text that is a constant; it has to outlive the fragment.
Fragment textFragment(std::string_view text, std::size_t position);

/// A position in the statement text as an argument of a function inside SQLite.
std::string positionArgument(std::size_t position);

/// The decimal type of an exact value; an integer constant has no more digits than it needs.
Type decimalTypeOf(const Fragment& exact);

/// Where a converted value goes.
struct Destination {
    enum class Purpose : std::uint8_t {
        meeting, ///< it meets another value, in a comparison or among the branches of CASE
        cast,    ///< CAST and CONVERT, which may cut a text
        column   ///< it is written into `column`, which it has to fit
    };

    Purpose purpose = Purpose::meeting;
    std::string_view column = {};
    int style = -1; ///< of a date that becomes a text, or the other way round; -1 when none is given
};

/// The value as another type. Conversions that can fail are checked when the statement runs,
/// since a value that no row needs must not be reported.
/// @throws Fault (conversion) when no value of the one type can become the other
Fragment convert(Fragment value, const Type& target, const Destination& destination = {});

/// Makes two values comparable by SQLite's own operators, so that indexes stay useful: texts by
/// our collation, decimals in one scale, texts turned into the other side's type.
void makeComparable(Fragment& left, Fragment& right);

/// The text with our collation, unless it has it.
void collate(Fragment& value);

} // namespace tellurix::embedded
