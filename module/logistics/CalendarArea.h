#pragma once

#include "module/host/services.h"
#include "module/logistics/Area.h"
#include "module/logistics/calendar_weeks.h"

namespace tellurix::logistics {

/// The calendar weeks of the contract with their plan quantities.
class CalendarArea final : public Area {
public:
    /// @param period of the contract, as the settings area has read it
    CalendarArea(ui::Form& form, host::HostServices& services, const std::optional<DeliveryPeriod>& period);

    ui::Layout layout() override;
    void open(const LogisticsContract& contract) override;
    void reload(std::optional<std::int64_t> key) override;
    parts::EditMode& mode() override { return mode_; }
    bool changed() const override { return false; }

private:
    LogisticsContract contract_;
    ui::Frame frmKalenderwochen;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
