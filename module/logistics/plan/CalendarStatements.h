#pragma once

#include "module/base/database.h"
#include "module/logistics/plan/calendar_weeks.h"

#include <cstdint>
#include <string>

namespace tellurix::logistics {

/// The statements on the calendar weeks of one contract.
class CalendarStatements {
public:
    /// @param contract `ID_VERTRAG`
    /// @param record `WVO_VERTRAG.ID` of that contract
    explicit CalendarStatements(std::int32_t contract = 0, std::int64_t record = 0)
        : contract_(contract), record_(record) {}

    /// A batch whose last statement answers the weeks, each with its first and last day and the sum of the
    /// plan. Its outer join answers one row without a key where there is no week.
    /// @param sortColumn the number of the column to sort by, from 1; negative for the other way round
    std::string list(int sortColumn) const;

    std::string findGenerated(const base::IsoWeek& week) const;
    std::string insertGenerated(const base::IsoWeek& week) const;
    /// Keys and plan quantities of all weeks.
    std::string plans() const;
    /// Gives a week another plan quantity, as long as it still has the one that is expected.
    std::string replacePlan(std::int64_t key, const base::Value& expected, const base::Value& plan) const;
    /// Removes a week, as long as it has the plan quantity that is expected.
    std::string removePlanned(std::int64_t key, const base::Value& expected) const;
    /// Gives every week of the contract the same part of its quantity, those of no delivery period and
    /// those entered by hand as well: the plan follows the contract.
    std::string spread(std::size_t weeks) const;

    /// @param year, week as typed
    /// @param key of the row that is saved, 0 for a new one
    std::string findOther(const std::string& year, const std::string& week, std::int64_t key) const;
    std::string insert() const;
    /// The key of the newest row.
    std::string newest() const;
    /// Year, week and plan quantity of a row.
    std::string week(std::int64_t key) const;
    /// @param plan a number with a decimal comma or point
    std::string update(const std::string& year, const std::string& week, const std::string& plan,
                       std::int64_t key) const;
    std::string remove(std::int64_t key) const;

    /// The contract's quantities by their unit, in columns EINHEIT and MENGE: a row for each, one without
    /// a name for lines that have none.
    std::string contractQuantities() const;

private:
    std::int32_t contract_;
    std::int64_t record_;
};

} // namespace tellurix::logistics
