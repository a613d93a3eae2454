#pragma once

#include "module/host/services.h"
#include "module/logistics/Area.h"
#include "module/ui/controls/Label.h"

namespace tellurix::logistics {

/// The forest helpers of the contract.
class HelperArea final : public Area {
public:
    HelperArea(ui::Form& form, host::HostServices& services);

    ui::Layout layout() override;
    void open(const LogisticsContract& contract) override;
    void reload(std::optional<std::int64_t> key) override;
    parts::EditMode& mode() override { return mode_; }
    bool changed() const override { return false; }

private:
    ui::Frame frmWaldhelfer;
    ui::Label lblMengeneinheit;
    ui::Label lblEinheit;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
