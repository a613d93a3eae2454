#pragma once

#include "module/base/date_time.h"
#include "module/parts/grids/KeyedRow.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <string>

namespace tellurix::logistics {

/// Of which contract and week the provision reports are.
struct ReportWeek {
    std::string contract = {}; ///< `ID_VERTRAG`, empty while none is chosen
    int year = 0;              ///< ISO year, 0 while no week is chosen
    int week = 0;

    bool chosen() const { return !contract.empty() && year != 0; }
};

/// The fields of the provision reports' rows.
namespace reportField {

inline constexpr const char* announced = "ZUEGE";
inline constexpr const char* confirmed = "ZUEG_ZUGESAGT";
inline constexpr const char* carrier = "FRAECHTER_TEXT";
inline constexpr const char* report = "ID";          ///< NULL for a helper without a report
inline constexpr const char* helper = "ID_PERSONAL"; ///< the key of a row
inline constexpr std::size_t nameIndex = 1;          ///< the helper's name stands in a column without one

} // namespace reportField

/// The contracts of that kind that take weekly reports.
/// @param modul compared with `ID_FAKTART`
std::string reportingContracts(std::int16_t modul);
/// The contract of the name in a box, of whatever kind and with reports or not.
/// @throws ui::RefusedInput where a quote in it would end its place
std::string contractOfName(ui::TextBox& box);

/// The statements on one contract's reports for one week.
class ProvisionStatements {
public:
    explicit ProvisionStatements(ReportWeek of = {}) : of_(std::move(of)) {}

    /// The contract's calendar weeks, as "23/2025".
    std::string weeks() const;
    /// The week of that text: its key year × 100 + week as ID, KW, and its days as LONG.
    /// @throws ui::RefusedInput where a quote in it would end its place
    std::string weekOfText(ui::TextBox& box) const;

    /// A row for each helper of the contract, with the report where there is one; none without a contract.
    /// @param name, number what the helpers are filtered by; an empty one filters nothing
    /// @throws ui::RefusedInput where a quote in one would end its place
    std::string helpers(ui::TextBox& name, ui::TextBox& number) const;
    /// The week's reports as they are now.
    std::string reports() const;
    /// Sums of the announced and confirmed loads of other reports: those that have neither this year nor
    /// this week's number. The rest of the year is left out, and the same week of other years.
    std::string otherReports() const;
    /// The loads of all helpers in each calendar week of the contract: JAHR, WOCHE, ZUEGE, ZUGESAGT.
    std::string loadsByWeek() const;

    static std::string deletion(std::int64_t report);
    /// Makes a report and answers with its key.
    std::string creation(std::int64_t helper) const;
    /// Writes the values of a row, and the centre's stamp, where one differs. A number that is emptied
    /// never differs, because nothing is <> NULL.
    /// @throws base::StatementError where a quote in the carrier would end its place
    static std::string change(parts::KeyedRow& row, base::DateTime now);

private:
    std::string contract() const { return of_.contract.empty() ? "0" : of_.contract; }

    ReportWeek of_;
};

} // namespace tellurix::logistics
