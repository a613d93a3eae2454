#pragma once

#include "database/embedded/execution/Batch.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tellurix::embedded {

/// The values of a batch's variables while it runs.
using Frame = std::vector<Cell>;

/// An expression on variables that is worked out here and not by a statement, which in a loop would take
/// longer than all its rows. It knows whole numbers and dates and what a loop does with them; for anything
/// else there is no calculation, and where a value is missing or leaves its type there is no answer: SQLite
/// is asked then, and what it says holds.
class Calculation {
public:
    /// @return nothing when there is no calculation for this expression, or none of this type
    static std::optional<Calculation> of(const Expression& expression, const Variables& variables,
                                         TypeKind kind);

    /// A date in milliseconds, a condition as 0 or 1.
    std::optional<std::int64_t> value(const Frame& frame, const SessionOptions& options);

private:
    enum class Step : std::uint8_t { number, variable, arithmetic, comparison, both, either, part, addition };

    /// Operands stand before what is done with them; `number` is the literal, the variable, or the part.
    struct Node {
        Step step;
        Operator op = Operator::none;
        std::int64_t number = 0;
    };

    Calculation() = default;
    /// @return the type of what was added, `null` when there is no calculation for it
    TypeKind add(const Expression& expression, const Variables& variables, int depth);
    TypeKind addDatePart(const Expression& call, const Variables& variables, int depth);

    std::vector<Node> nodes_;
    std::vector<std::int64_t> stack_; ///< kept between two runs
};

} // namespace tellurix::embedded
