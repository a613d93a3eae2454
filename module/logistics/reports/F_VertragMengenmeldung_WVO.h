#pragma once

#include "module/host/ReportScreen.h"
#include "module/logistics/GuardedQuantities.h"
#include "module/parts/EditMode.h"
#include "module/parts/fields/PersonBox.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Label.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tellurix::logistics {

/// The quantity reports: for one forest helper, the contracts that are not closed with what he has
/// announced, what is confirmed, what the forest owners have announced, and what is delivered. The centre
/// edits the announced and confirmed quantities, and exports all announced quantities as three listings.
///
/// The screen is kept between calls and comes back with the helper of the last one.
class F_VertragMengenmeldung_WVO final : public ui::Form, public host::ReportScreen {
public:
    explicit F_VertragMengenmeldung_WVO(host::HostServices& services);

    /// @param modul makes no difference here
    void Run(const host::TlxVar& session, std::int16_t modul) override;
    host::ScreenMemory memory() const override;
    void resume(const host::ScreenMemory& memory) override;

private:
    using State = parts::EditMode::State;

    void connect();
    void arrange();
    std::vector<parts::KeyedGrid::Column> columns();
    std::int32_t helper() const;

    /// Shows what the database has for the helper, in view mode.
    void load();
    void showSums();
    void edit();
    void save();
    void cancel();
    void exportListings();
    bool escape() override;
    bool queryUnload() override;

    host::HostServices& services_;
    host::TlxVar session_;

    ui::Label lblVertrag{*this, "lblVertrag", "Waldhelfer auswählen:"};
    ui::TextBox txtWaldhelfer{*this, "txtWaldhelfer", 10};
    ui::TextBox txtWaldhelferName{*this, "txtWaldhelferName", 30};
    ui::Grid MSFG{*this, "MSFG", 14};
    ui::TextBox txtEdit{*this, "txtEdit", 12};
    ui::Label lblSummeCol2{*this, "lblSummeCol2", "Summe Waldhelfer angemeldet:"};
    ui::Label lblCol2{*this, "lblCol2"};
    ui::Label lblSummeCol3{*this, "lblSummeCol3", "Summe Waldhelfer bestätigt:"};
    ui::Label lblCol3{*this, "lblCol3"};
    ui::ProgressBar ProgressBar1{*this, "ProgressBar1"};
    ui::Button btnBearbeiten{*this, "btnBearbeiten", "Bearbeiten"};
    ui::Button btnSpeichern{*this, "btnSpeichern", "Speichern"};
    ui::Button btnAbbrechen{*this, "btnAbbrechen", "Bearb.Abbr."};
    ui::Button btnAllezusagen{*this, "btnAllezusagen", "Alle bestätigen"};
    ui::Button btnExcel{*this, "btnExcel", "EXCEL"};
    ui::Button btnSchliesen{*this, "btnSchliesen", "Schließen"};

    parts::PersonBox person_;
    parts::KeyedGrid contracts_;
    GuardedQuantities quantities_;
    parts::EditMode mode_;
};

} // namespace tellurix::logistics
