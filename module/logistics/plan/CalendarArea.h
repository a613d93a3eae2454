#pragma once

#include "module/base/own_text.h"
#include "module/host/services.h"
#include "module/logistics/plan/Area.h"
#include "module/logistics/plan/CalendarStatements.h"
#include "module/logistics/plan/WeekGeneration.h"
#include "module/logistics/plan/WeekPlan.h"
#include "module/logistics/plan/calendar_weeks.h"
#include "module/parts/UndoOffers.h"
#include "module/parts/fields/EnteredChanges.h"
#include "module/parts/fields/NumberField.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/meanwhile/SharedRow.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// The calendar weeks of the contract with their plan quantities: a list, a week of which is edited in
/// boxes beside it, and their generation from the delivery period.
class CalendarArea final : public Area {
public:
    /// @param period of the contract, as the settings area has read it
    /// @param undo what the form can undo
    CalendarArea(ui::Form& form, host::HostServices& services, const std::optional<DeliveryPeriod>& period,
                 parts::UndoOffers& undo);

    ui::Layout layout() override;
    void open(const LogisticsContract& contract) override;
    void reload(std::optional<std::int64_t> key) override;
    parts::EditMode& mode() override { return mode_; }
    bool changed() const override { return !mode_.viewing() && changes_.any(); }
    void restoreColumns() override;
    void saveColumns() override;
    void discard() override;

    /// The columns of the list; two more where the host's record set has their fields.
    /// @param week a row of the record set, null for one without these fields
    static std::vector<parts::KeyedGrid::Column> columns(base::Fields* week);

private:
    void connect();
    void connectRow();
    /// Goes to a week of the list, as keys in the list do.
    void goTo(std::int64_t week);
    void sortBy(int heading);
    /// The number that a column has in the list's query.
    int numberOf(std::size_t column);
    /// The one that the rows are ordered by, negative for descending.
    int sortColumn();
    void clearBoxes();
    /// The current week stands beside the list while none is edited.
    void showCurrent();
    void startNew();
    void startEdit();
    void edit(parts::EditMode::State state, std::int64_t key);
    void save();
    void cancel();
    /// Removes the row that a failed save has left without values. @return whether there was one
    bool removeUnfinished();
    void removeWeek();
    void generate();
    /// @return what is said then
    std::string undoGeneration(const WeekGeneration& generation);

    /// The delivery period; nothing when there is none, and the user has been told.
    const DeliveryPeriod* requiredPeriod();
    void pick(ui::TextBox& box, const ui::Label& label, const std::string& choices);
    /// Whether the boxes hold what they were filled with.
    bool sameWeek() const;
    bool leaveYear();
    bool leaveWeek();
    /// @return false
    bool refuseWeek(ui::TextBox& box);
    bool complete();
    std::string words(base::OwnText text, const std::vector<std::string>& values = {}) const;

    host::HostServices& services_;
    const std::optional<DeliveryPeriod>& period_;
    parts::UndoOffers& undo_;
    LogisticsContract contract_;
    CalendarStatements statements_;
    std::int64_t editedKey_ = 0; ///< of the week in the boxes; 0 for a new one that has no row yet
    std::string shownYear_;      ///< what the boxes were filled with
    std::string shownWeek_;
    std::string caption_; ///< of the frame, without the sum
    parts::EnteredChanges changes_;

    ui::Frame frmKalenderwochen;
    ui::Grid DataGridKalendar;
    ui::Label lblMeldung;
    ui::Frame frmKalendar;
    ui::Label lblKW_Year;
    ui::TextBox txtJahr;
    ui::Label lblKW;
    ui::TextBox txtWoche;
    ui::Label lblPlanmenge;
    ui::TextBox txtPlanmenge;
    WeekPlan weekPlan_;
    ui::Button btnNeu1;
    ui::Button btnBearbeiten1;
    ui::Button btnSpeichern1;
    ui::Button btnAbbrechen1;
    ui::Button btnLoschen1;
    ui::Button btnGenWeek;

    parts::KeyedGrid weeks_;
    parts::NumberField plan_;
    parts::SharedRow row_;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
