#pragma once

#include "module/base/own_text.h"
#include "module/host/services.h"
#include "module/logistics/GuardedQuantities.h"
#include "module/logistics/plan/Area.h"
#include "module/logistics/plan/HelperSelection.h"
#include "module/parts/UndoOffers.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"

#include <string>
#include <vector>

namespace tellurix::logistics {

/// The forest helpers of the contract, with what each is planned to deliver, has announced, and has been
/// confirmed.
class HelperArea final : public Area {
public:
    /// @param undo what the form can undo
    HelperArea(ui::Form& form, host::HostServices& services, parts::UndoOffers& undo);

    ui::Layout layout() override;
    void open(const LogisticsContract& contract) override;
    void reload(std::optional<std::int64_t> key) override;
    parts::EditMode& mode() override { return mode_; }
    bool changed() const override { return quantities_.changed(); }
    void restoreColumns() override;
    void saveColumns() override;

private:
    using State = parts::EditMode::State;

    void connect();
    std::vector<parts::KeyedGrid::Column> columns() const;
    /// Loads the helpers that the filter lets through, unless they are shown already.
    void applyFilter();
    void showSums();
    void edit();
    void save();
    void cancel();
    void addOne();
    void chooseAll();
    void removeCurrent();
    void say(base::OwnText text, const std::vector<std::string>& values = {});
    /// Sends a statement on all helpers of the contract, and tells that it is done.
    void confirm(const std::string& statement);

    host::HostServices& services_;
    parts::UndoOffers& undo_;
    LogisticsContract contract_;
    std::string filter_; ///< of the rows that are shown

    ui::Frame frmWaldhelfer;
    ui::Label lblFilter;
    ui::TextBox txtFilter;
    ui::Grid MSFG;
    ui::TextBox txtEdit;
    ui::ProgressBar ProgressBar1;
    ui::Frame frmSummen;
    ui::Label lblSumme;
    ui::Label lbldruchschn;
    ui::Label lbldruchschnMenge;
    ui::Label lblangem;
    ui::Label lblangemMenge;
    ui::Label lblangemWB;
    ui::Label lblangemWBMenge;
    ui::Label lblbest;
    ui::Label lblbestMenge;
    ui::Label lblMengeneinheit;
    ui::Label lblEinheit;
    ui::Button btnNeu2;
    ui::Button btnBearbeiten2;
    ui::Button btnSpeichern2;
    ui::Button btnAbbrechen2;
    ui::Button btnLoschen2;
    ui::Button btnWaldhelfer;
    ui::Button btnAMB;
    ui::Button btnAWBMB;
    ui::Button btnXLS;
    ui::Button btnSerienmail;

    parts::KeyedGrid helpers_;
    GuardedQuantities quantities_;
    HelperSelection selection_;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
