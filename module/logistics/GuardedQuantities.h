#pragma once

#include "module/base/date_time.h"
#include "module/host/services.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/meanwhile/TakenOver.h"
#include "module/ui/controls/ProgressBar.h"
#include "module/ui/input/GridEditor.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tellurix::logistics {

/// The announced and the confirmed quantity in the rows of a grid, each row a forest helper under a
/// contract: edited in place, confirmed as announced, and written back.
///
/// Every row is written by a statement that guards itself: it changes a row, and moves the centre's change
/// stamp, only where a quantity differs. What nobody typed is written as the database has it, so that
/// neither its decimals nor what a colleague has entered meanwhile is lost.
class GuardedQuantities {
public:
    static constexpr const char* announced = "MENGE_ANG";
    static constexpr const char* confirmed = "MENGE_BES";
    /// What an empty quantity counts as when it is compared; no quantity can be as large.
    static constexpr std::int64_t sentinel = 99'999'999;

    /// How the condition of the statement begins: the two screens differ in a blank.
    static constexpr const char* ofContract = "WHERE (  ";
    static constexpr const char* ofHelper = "WHERE ( ";

    /// The UPDATE of one row.
    /// @param condition `ofContract` or `ofHelper`
    /// @param key `WVO_VERTRAG_WALDHELFER.ID`
    static std::string statement(std::string_view condition, std::int64_t key,
                                 const base::Value& announcedQuantity, const base::Value& confirmedQuantity,
                                 base::DateTime now);

    /// What a screen has of its own.
    struct Screen {
        const char* condition;
        /// What a message calls a row by.
        std::function<std::string(parts::KeyedRow&)> nameOf;
        /// Quantities are others than before.
        std::function<void()> changed;
    };

    /// @param box for the cells; stands nowhere in the layout
    /// @param bar shows the progress of a save
    GuardedQuantities(ui::Grid& grid, parts::KeyedGrid& rows, ui::TextBox& box, ui::ProgressBar& bar,
                      Screen screen);

    /// A narrow column that marks the rows with something typed that is not written yet.
    static parts::KeyedGrid::Column markColumn();
    static parts::KeyedGrid::Column column(std::string caption, const char* field);

    /// Shows rows as they were read: nothing is typed.
    void show(std::vector<parts::KeyedRow> rows);
    /// Goes to the grid, to a cell that can be edited.
    void startEditing();
    /// Whether something typed is not written yet, in a cell that is still open or in any other.
    bool changed() const;

    /// The sum of a field's quantities, as it is shown.
    std::string sum(std::string_view field) const;

    /// Gives every row its announced quantity as confirmed one, with all its decimals. Nothing is written.
    void confirmAll();

    /// Writes all rows, in the order of the grid, after they have been read again: what both the user and a
    /// colleague have changed is asked about.
    /// @param present a query of the rows as they are now: ID and both quantities
    /// @return false when the user wants to go back: nothing is written
    /// @throws base::Refused after a failure, which has been reported: it tells where it happened and how
    ///         many rows are written. The others stay typed and marked, and the next call writes them.
    bool save(host::HostServices& services, const host::TlxVar& session, const std::string& present);

    /// What a save has taken over from somebody else since the rows were shown.
    const parts::TakenOver& takenOver() const { return takenOver_; }

private:
    struct Quantities {
        base::Value announced;
        base::Value confirmed;
    };
    using QuantitiesByKey = std::map<std::int64_t, Quantities>;
    static QuantitiesByKey read(base::Connection& connection, const std::string& query);
    std::string write(int row, int column, const std::string& text);
    /// Brings the rows together with what the database has. @return nothing when the user wants to go back
    std::optional<QuantitiesByKey> settle(host::HostServices& services, const host::TlxVar& session,
                                          const std::string& present);
    void writeRows(host::HostServices& services, const host::TlxVar& session, const QuantitiesByKey& present);
    void tellGone(host::HostServices& services, const host::TlxVar& session, const QuantitiesByKey& present);

    ui::Grid& grid_;
    parts::KeyedGrid& rows_;
    ui::TextBox& box_;
    ui::ProgressBar& bar_;
    Screen screen_;
    ui::GridEditor cell_;
    parts::TakenOver takenOver_;
};

} // namespace tellurix::logistics
