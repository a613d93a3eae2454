#include "module/logistics/HelperArea.h"

namespace tellurix::logistics {

HelperArea::HelperArea(ui::Form& form, host::HostServices& /*services*/)
    : frmWaldhelfer(form, "frmWaldhelfer", "Waldhelfer"),
      lblMengeneinheit(form, "lblMengeneinheit", "Einheit"),
      lblEinheit(form, "lblEinheit"),
      mode_({}, {}, [] { return false; }) {}

ui::Layout HelperArea::layout() {
    return ui::frame(frmWaldhelfer, {ui::row({lblMengeneinheit, lblEinheit})}).growing();
}

void HelperArea::open(const LogisticsContract& contract) {
    lblEinheit.setCaption(contract.unit);
    mode_.reset();
}

void HelperArea::reload(std::optional<std::int64_t> /*key*/) {}

} // namespace tellurix::logistics
