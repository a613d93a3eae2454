#pragma once

#include "module/host/services.h"
#include "module/logistics/plan/Area.h"
#include "module/logistics/plan/CalendarStatements.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tellurix::logistics {

/// What the plan of the weeks comes to: a chart of them, which stands beside their list, and their sum beside
/// the quantity of the contract.
class WeekPlan {
public:
    WeekPlan(ui::Form& form, host::HostServices& services);

    /// Chart and sums, each in a frame of its own.
    ui::Layout chart();
    ui::Layout sums();

    /// What can be clicked while the list can be used.
    ui::Control& bars() { return chtPlan; }

    /// Shows the weeks of a list, in the order of time whatever the order of the list is, and reads the
    /// quantities of the contract.
    /// @param weeks rows with JAHR, WOCHE and PLANMENGE
    void show(parts::KeyedGrid& weeks, const LogisticsContract& contract,
              const CalendarStatements& statements);
    /// Marks the week with that key.
    void mark(std::optional<std::int64_t> key);

    /// The user has chosen a week in the chart.
    ui::Handlers<void(std::int64_t key)> onSelect;

private:
    void showChart(parts::KeyedGrid& weeks, const LogisticsContract& contract);
    void showSums(parts::KeyedGrid& weeks, const LogisticsContract& contract,
                  const CalendarStatements& statements);

    host::HostServices& services_;
    std::vector<std::int64_t> keys_; ///< of the bars

    ui::Frame frmPlan;
    ui::Chart chtPlan;
    ui::Label lblOhneMenge;
    ui::Frame frmVergleich;
    ui::Label lblPlan;
    ui::Label lblPlanWert;
    ui::Label lblVertrag;
    ui::Label lblVertragWert;
    ui::Label lblDifferenz;
    ui::Label lblDifferenzWert;
};

} // namespace tellurix::logistics
