#pragma once

#include "module/base/own_text.h"
#include "module/host/ReportScreen.h"
#include "module/logistics/reports/F_ZuegeJeWoche.h"
#include "module/logistics/reports/ProvisionStatements.h"
#include "module/logistics/reports/ProvisionTable.h"
#include "module/parts/EditMode.h"
#include "module/parts/fields/LookupBox.h"
#include "module/parts/meanwhile/TakenOver.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Frame.h"
#include "module/ui/controls/ProgressBar.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// The weekly provision reports: what the forest helpers of a contract provide in one calendar week. The
/// centre sees who has reported, changes announced and confirmed loads and the carrier, and hands the
/// list on as a spreadsheet.
class F_Bereitstellung_WVO final : public ui::Form, public host::ReportScreen {
public:
    explicit F_Bereitstellung_WVO(host::HostServices& services);

    void Run(const host::TlxVar& session, std::int16_t modul) override;

private:
    void connect();
    void connectChoice();
    void connectFilter(ui::TextBox& box);
    void arrange();
    bool escape() override;
    bool queryUnload() override;

    /// What stands in the two boxes of the choice.
    std::string choice() const { return txtVertrag.text() + "\n" + txtKalender.text(); }
    ReportWeek chosenWeek() const;
    /// The week of the former contract stays chosen where the new one has it, too.
    void keepWeek();
    void reload();
    /// The title names the contract, and an empty list says why it is.
    void showLoaded();
    /// What the list says where it shows nothing.
    std::string whyEmpty() const;
    void showSums();
    /// How many have reported, and who has not.
    void showReported();

    void startEdit();
    void cancel();
    void save();
    void exportTable(bool internal);
    /// Shows the loads of all weeks, and goes to the one that the user chooses there.
    void showLoadsByWeek();
    std::string own(base::OwnText text, const std::vector<std::string>& values = {}) const {
        return base::ownText(text, session_.language, values);
    }

    host::HostServices& services_;
    host::TlxVar session_;
    std::int16_t modul_ = 0;
    ReportWeek week_; ///< of the rows
    ProvisionStatements statements_;
    std::string caption_;               ///< of the form, in the user's language
    std::optional<std::string> loaded_; ///< the choice that the rows are of
    base::Decimal otherAnnounced_;      ///< of the contract's other reports
    base::Decimal otherConfirmed_;

    ui::Label lblVertrag{*this, "lblVertrag", "Vertragsauswahl"};
    ui::TextBox txtVertrag{*this, "txtVertrag", 40};
    ui::Label lblKalender{*this, "lblKalender", "Kalender"};
    ui::TextBox txtKalender{*this, "txtKalender", 10};
    ui::TextBox txtKalenderTage{*this, "txtKalenderTage", 25};
    ui::Label lblWaldhelfer{*this, "lblWaldhelfer", "Filter WH Name:"};
    ui::TextBox txtWaldhelfer{*this, "txtWaldhelfer", 24};
    ui::Label lblWHNummer{*this, "lblWHNummer", "Filter WH Nummer:"};
    ui::TextBox txtWHNummer{*this, "txtWHNummer", 10};
    ui::CheckBox chkOhneMeldung{*this, "chkOhneMeldung", "n&ur ohne Meldung"};

    ui::Grid MSFG{*this, "MSFG", 16};
    ui::TextBox txtEdit{*this, "txtEdit", 14};
    ui::Label lblGemeldet{*this, "lblGemeldet"};
    ui::Label lblFehlen{*this, "lblFehlen"};
    ui::ProgressBar pgbSpeichern{*this, "pgbSpeichern"};

    ui::Frame frmSummen{*this, "frmSummen", "Summen"};
    ui::Label lblZuege{*this, "lblZuege", "Züge"};
    ui::Label lblZugesagt{*this, "lblZugesagt", "Züge zugesagt"};
    ui::Label lblWH1{*this, "lblWH1", "Summe KW:"};
    ui::Label lblWH2{*this, "lblWH2"};
    ui::Label lblWH3{*this, "lblWH3"};
    ui::Label lblZ1{*this, "lblZ1", "Summe Vertrag gesamt:"};
    ui::Label lblZ2{*this, "lblZ2"};
    ui::Label lblZ3{*this, "lblZ3"};
    ui::Label lblVS{*this, "lblVS", "(diese KW und andere KW anderer Jahre)"};

    ui::Button btnBearbeiten{*this, "btnBearbeiten", "&Bearbeiten"};
    ui::Button btnSpeichern{*this, "btnSpeichern", "&Speichern"};
    ui::Button btnAbbrechen{*this, "btnAbbrechen", "Bearb.&Abbr."};
    ui::Button btnAllezusagen{*this, "btnAllezusagen", "Alle &zusagen"};
    ui::Button btnExcel{*this, "btnExcel", "&Excel Firmenexport"};
    ui::Button btnExcelAlles{*this, "btnExcelAlles", "&Excel Intern"};
    ui::Button btnFHPExport{*this, "btnFHPExport", "&FHP"};
    ui::Button btnZuegeJeWoche{*this, "btnZuegeJeWoche", "Züge je &Woche"};
    ui::Button btnSchliesen{*this, "btnSchliesen", "S&chließen"};

    parts::LookupBox contractBox_;
    parts::LookupBox weekBox_;
    ProvisionTable table_;
    parts::TakenOver takenOver_; ///< since the table was shown
    parts::EditMode mode_;
    F_ZuegeJeWoche loadsByWeek_;
};

} // namespace tellurix::logistics
