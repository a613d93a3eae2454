#include "module/logistics/CalendarArea.h"

namespace tellurix::logistics {

CalendarArea::CalendarArea(ui::Form& form, host::HostServices& /*services*/,
                           const std::optional<DeliveryPeriod>& /*period*/)
    : frmKalenderwochen(form, "frmKalenderwochen", "Kalenderwochen"), mode_({}, {}, [] { return false; }) {}

ui::Layout CalendarArea::layout() {
    return ui::frame(frmKalenderwochen, {}).growing();
}

void CalendarArea::open(const LogisticsContract& contract) {
    contract_ = contract;
    mode_.reset();
}

void CalendarArea::reload(std::optional<std::int64_t> /*key*/) {}

} // namespace tellurix::logistics
