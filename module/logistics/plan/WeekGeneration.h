#pragma once

#include "module/base/database.h"
#include "module/logistics/plan/CalendarStatements.h"
#include "module/parts/grids/KeyedRow.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <vector>

namespace tellurix::logistics {

/// One generation of a contract's weeks, and the way back.
///
/// The weeks that are missing are made and the contract's quantity is spread over all weeks, whatever they
/// had. Undoing deletes those that were made and gives the others what they had, each as long as it still has
/// what the generation gave it: what somebody has planned since then stays.
class WeekGeneration {
public:
    explicit WeekGeneration(CalendarStatements statements) : statements_(statements) {}

    /// Makes the weeks and spreads the quantity.
    /// @throws base::DatabaseError what was written until then can be undone all the same
    void run(base::Connection& connection, const std::vector<base::IsoWeek>& weeks);
    /// Takes note of what the weeks have now, made ones or not.
    /// @param weeks rows of the list, with JAHR, WOCHE and PLANMENGE
    void finish(std::span<parts::KeyedRow> weeks);

    std::size_t made() const { return madeWeeks_.size(); }
    /// How many plan quantities were replaced.
    std::size_t replaced() const;
    /// Whether there is anything to undo.
    bool wrote() const { return !made_.empty() || !before_.empty(); }

    /// @return how many weeks stay as they are, because somebody has changed them since
    std::size_t undo(base::Connection& connection) const;

private:
    using Plans = std::map<std::int64_t, base::Value>; ///< by the key of the week
    Plans read(base::Connection& connection) const;

    CalendarStatements statements_;
    std::vector<base::IsoWeek> madeWeeks_;
    std::set<std::int64_t> made_; ///< their keys
    Plans before_;                ///< of the weeks that were spread over; those that were made have nothing
    Plans given_;                 ///< by the generation
};

} // namespace tellurix::logistics
