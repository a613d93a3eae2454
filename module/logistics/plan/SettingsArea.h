#pragma once

#include "module/base/StatementText.h"
#include "module/host/services.h"
#include "module/logistics/plan/Area.h"
#include "module/logistics/plan/calendar_weeks.h"
#include "module/parts/UndoOffers.h"
#include "module/parts/fields/EnteredChanges.h"
#include "module/parts/fields/LookupBox.h"
#include "module/parts/fields/NumberField.h"
#include "module/parts/meanwhile/SharedRow.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"

#include <memory>
#include <optional>
#include <string>

namespace tellurix::logistics {

/// The logistics settings of the contract: its row in `WVO_VERTRAG`.
class SettingsArea final : public Area {
public:
    /// @param undo what the form can undo
    SettingsArea(ui::Form& form, host::HostServices& services, parts::UndoOffers& undo);

    ui::Layout layout() override;
    void open(const LogisticsContract& contract) override;
    /// @throws base::Refused when a colleague has deleted the contract
    void reload(std::optional<std::int64_t> key) override;
    parts::EditMode& mode() override { return mode_; }
    bool changed() const override { return !mode_.viewing() && changes_.any(); }

    /// The delivery period of the contract's head, as it was read last; nothing while an end is missing.
    const std::optional<DeliveryPeriod>& deliveryPeriod() const { return period_; }
    /// Warns of settings without which the helpers' web pages cannot work.
    void warnOnClosing();

private:
    void connect();
    void connectRow();
    std::unique_ptr<base::Recordset> readRow();
    void LoadSettings();
    void startEdit();
    void save();
    void cancel();
    /// Whether the dates are there that announced quantities need; the user has been told otherwise.
    bool datesAreThere();
    void warnOfMissingUnit();
    void chooseDocument();
    /// Both throw ui::RefusedInput when no statement can carry a text.
    std::string original();
    std::string updateStatement(const std::string& original);
    void forgetLogisticsProcess();
    void connectWeekday(parts::LookupBox& box, const char* column);
    std::string weekdayIn(base::Fields& row, std::string_view column) const;
    void tell(const std::string& message);

    host::HostServices& services_;
    parts::UndoOffers& undo_;
    LogisticsContract contract_;
    std::optional<DeliveryPeriod> period_;
    parts::EnteredChanges changes_;

    ui::Frame frmSchalter;
    ui::CheckBox chkAngemeldeteMenge;
    ui::CheckBox chkGesperrt;
    ui::CheckBox chkMengenauf;
    ui::CheckBox chkErforderlich;
    ui::CheckBox chkAktive;
    ui::CheckBox chkVermarktung;
    ui::CheckBox chkSichtbar;
    ui::CheckBox chkHandabmas;
    ui::CheckBox chkVertragMGSichtbar;
    ui::CheckBox chkGeschaeftsfeldNeu;
    ui::CheckBox chkVorvertrag;
    ui::CheckBox chkKeine_Mengenmeldung_Auf_WB;
    ui::CheckBox chkLieferungAusserhalbmoeglich;

    ui::Frame frmEinstellungen;
    ui::Label lblAngemeldete;
    ui::TextBox txtAngemeldete;
    ui::Label lblMengenmeldung;
    ui::TextBox txtMengenmeldung;
    ui::Label lblUberlieferung;
    ui::TextBox txtUberlieferung;
    ui::Label lblBereitstellung;
    ui::TextBox txtBereitstellung;
    ui::TextBox txtBereitstellungTime;
    ui::Label lblBereitstellungTime;
    ui::Label lblBelieferung;
    ui::TextBox txtBelieferung;
    ui::Label lblLieferparitat;
    ui::TextBox txtLieferparitat;

    ui::Frame frmBemerkung;
    ui::TextBox txtBemerkung;
    ui::Frame frmOriginal;
    ui::TextBox txtOriginal;
    ui::Button btnOriginal;

    ui::Frame frmFhpLogistik;
    ui::CheckBox chkFHPLogistikVerweden;
    ui::CheckBox chkWaldverbandLogistikkoordinator;
    ui::CheckBox chkWaldhelferKannFraechterAendern;
    ui::CheckBox chkWaldhelferKannTransportauftraegeTeilen;
    ui::Label lblTransportauftraege;
    ui::TextBox txtTransportauftraege;
    ui::TextBox txtTransportauftragTime;
    ui::Label lblTransportauftragTime;

    ui::Button btnBearbeiten;
    ui::Button btnSpeichern;
    ui::Button btnAbbrechen;

    parts::NumberField uberlieferung_;
    parts::LookupBox belieferung_;
    parts::LookupBox lieferparitat_;
    parts::LookupBox bereitstellung_;
    parts::LookupBox transportauftraege_;
    parts::SharedRow row_;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
