#pragma once

#include "module/base/Refused.h"
#include "module/logistics/reports/ProvisionStatements.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/meanwhile/RowMerge.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/input/GridEditor.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::logistics {

/// The helpers of a contract with their reports for one week, as the grid of the provision reports shows
/// and edits them. A row is known by its helper; what was typed in it is kept until it is written.
class ProvisionTable {
public:
    /// @param box floats over a cell while it is edited
    /// @param onlyMissing hides the helpers who have reported, from the eye alone
    ProvisionTable(ui::Grid& grid, ui::TextBox& box, ui::CheckBox& onlyMissing, const base::Locale& locale);

    /// @param language of the session, for the marks
    /// @param carrierWidth the most characters of a carrier, 0 for no limit
    void open(const std::string& language, int carrierWidth);
    /// Whether cells can be edited. What stands in an open cell editor is given up.
    void setEditing(bool editing);
    /// @param ofWeek they have the reports of a week, so that a missing one means something
    void show(std::vector<parts::KeyedRow> rows, bool ofWeek);
    void clear() { show({}, false); }

    bool empty() const { return grid_.empty(); }
    std::span<parts::KeyedRow> rows() { return grid_.rows(); }
    parts::KeyedGrid& grid() { return grid_; }
    /// The names of those who have not reported.
    std::vector<std::string> missing();
    /// How many rows have values that are not written yet.
    int changed() const { return grid_.touchedRows(); }
    /// Whether anything would be lost: such a row, or what was typed into a cell that is still open.
    bool hasTyped();
    base::Decimal announced() { return grid_.sum(reportField::announced); }
    base::Decimal confirmed() { return grid_.sum(reportField::confirmed); }
    static std::string nameOf(parts::KeyedRow& row) { return row.text(reportField::nameIndex); }
    /// Whether the carrier of a row can stand in a statement: it is quoted there as it stands.
    static bool canCarry(parts::KeyedRow& row);
    /// Whether a report has the loads and the carrier that stand in a row.
    static bool isStored(parts::KeyedRow& row, parts::KeyedRow& report);

    /// Every helper's announced loads become the confirmed ones.
    void confirmAll();
    /// Refuses what no statement can carry of the values that were typed, and goes to its cell.
    /// @throws ui::RefusedInput
    void requireCarriers();
    /// Brings the first cell that can be edited into sight, in the current row.
    void goToFirstCell();
    /// The rows show their values as they are now.
    void redraw() { grid_.redraw(); }

    /// What was not typed takes the values that the database has by now, so that it is nobody's work that
    /// is overwritten. A report that has come meanwhile belongs to its helper's row.
    /// @param now the week's reports
    /// @param merge is told of what both the user and somebody else have changed
    /// @return the rows with typed values whose report is gone; once nothing is in conflict they have none
    /// any more
    std::vector<parts::KeyedRow*> refresh(std::vector<parts::KeyedRow> now, parts::RowMerge& merge);

    /// All rows for a spreadsheet (see KeyedGrid::text).
    /// @param internal with the columns that are not meant for the companies
    std::string text(bool internal);

    /// A cell has another value.
    std::function<void()> onChange;

private:
    void hideReported();
    /// Whether its helper has not reported in the chosen week, and nothing is typed for him either.
    bool lacksReport(parts::KeyedRow& row) const;
    std::string mark(parts::KeyedRow& row) const;
    int columnOf(std::string_view field) const;
    /// @throws ui::RefusedInput for a value in a column, which names both
    [[noreturn]] void refuse(ui::Control& control, int column, const std::string& value,
                             base::Refused::Sentence reason) const;
    /// What was typed into a cell. @throws ui::RefusedInput
    base::Value valueOf(int column, const std::string& typed) const;
    std::string writeCell(int row, int column, const std::string& typed);

    ui::Grid& shown_;
    ui::TextBox& box_;
    ui::CheckBox& onlyMissing_;
    base::Locale locale_;
    parts::KeyedGrid grid_;
    ui::GridEditor editor_;
    std::string language_;
    int carrierWidth_ = 0;
    bool ofWeek_ = false;
};

} // namespace tellurix::logistics
