#pragma once

#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/logistics/plan/CalendarArea.h"
#include "module/logistics/plan/HelperArea.h"
#include "module/logistics/plan/SettingsArea.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Tabs.h"

#include <array>
#include <cstdint>

namespace tellurix::logistics {

/// The logistics of one contract: its settings, its calendar weeks and its forest helpers, an area each.
///
/// Each area is in view or in edit mode of its own, so that a week can be looked up while the settings
/// are edited; Esc ends the editing of the one that is seen. Closing asks when something that was entered
/// would be lost, and warns of settings without which the helpers' web pages cannot work; neither keeps the
/// window open against the user's will.
class F_Vertrag_WVO final : public ui::Form, public host::Screen {
public:
    explicit F_Vertrag_WVO(host::HostServices& services);

    /// Opens the logistics of a contract and returns when the form is closed. A contract that is opened
    /// for the first time gets its logistics record.
    /// @throws base::Refused when a colleague has deleted the contract
    void Run(std::int32_t contract, const host::TlxVar& session);
    /// Reads the settings into their controls.
    void LoadSettings() { settings_.reload(std::nullopt); }
    /// Reloads one area.
    /// @param area 0 settings, 1 calendar weeks, 2 forest helpers
    /// @param key of the row that becomes the current one, in the areas that are lists
    void RefreshArea(std::size_t area, std::optional<std::int64_t> key = {});
    /// Enables and disables the buttons and frames of all areas as their edit modes say.
    void SetButtons();

private:
    std::array<Area*, 3> areas() { return {&settings_, &calendar_, &helpers_}; }
    Area& shownArea() { return *areas().at(static_cast<std::size_t>(SSTab1.selected())); }
    /// Esc cancels what is edited in the area that is shown, and closes the form where nothing is.
    void placeEscape();
    LogisticsContract openRecord(std::int32_t contract);
    bool escape() override;
    bool queryUnload() override;

    host::HostServices& services_;
    host::TlxVar session_;
    parts::UndoOffers undo_{status(), session_};

    ui::Tabs SSTab1{*this, "SSTab1", {"Einstellungen", "Kalenderwochen", "Waldhelfer"}};
    SettingsArea settings_;
    CalendarArea calendar_;
    HelperArea helpers_;
    ui::Button btnClose{*this, "btnClose", "S&chließen"};
};

} // namespace tellurix::logistics
