#pragma once

#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/parts/fields/EnteredChanges.h"
#include "module/parts/fields/LookupBox.h"
#include "module/parts/fields/NumberField.h"
#include "module/parts/fields/PersonBox.h"
#include "module/parts/meanwhile/SharedRow.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/TextBox.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tellurix::contract {

/// The head data of one contract: dates, delivery period, free numbers and texts, invoice and
/// booking kind, currency, client, delivery address.
///
/// The row is read when the screen opens, and once more directly before "Ok" writes it with one statement:
/// what a colleague has changed meanwhile stays. Every field is checked or put in form when it is left;
/// there is no further check at the end, and nothing is mandatory: a delivery period that ends before it
/// begins is marked and written as it is. "Abbrechen" writes nothing.
class F_HeaderVertrag final : public ui::Form, public host::Screen {
public:
    explicit F_HeaderVertrag(host::HostServices& services);

    /// Edits the head data of a contract; returns 0 when the screen is closed.
    int Run(const host::TlxVar& session, std::int32_t contract);
    /// What the last visit has saved although the user did not change it, because a colleague had: a
    /// sentence, empty for nothing.
    const std::string& takenOver() const { return takenOver_; }
    /// Whether the last visit has written the row.
    bool saved() const { return saved_; }

private:
    void connectDates();
    void markPeriod();
    void connectCurrency();
    void connectRow();
    void arrange();
    void setCaptions();
    void LoadHeader();
    std::unique_ptr<base::Recordset> readRow();
    void save();
    void cancel();
    bool queryUnload() override;
    void leaveCurrency();
    std::string updateStatement();

    host::HostServices& services_;
    host::TlxVar session_;
    std::int32_t contract_ = 0;
    int accessLevel_ = 0;
    std::string homeCurrency_;
    std::string takenOver_;
    parts::EnteredChanges changes_;
    bool saved_ = false;

    ui::Frame frmDates{*this, "frmDates", "Termine"};
    ui::Label lblVertragsDatum{*this, "lblVertragsDatum", "Vertragsdatum*"};
    ui::TextBox txtDate1{*this, "txtDate1", 11};
    ui::Label lblDate2{*this, "lblDate2", "Date2"};
    ui::TextBox txtDate2{*this, "txtDate2", 11};
    ui::Label lblDate3{*this, "lblDate3", "Date3"};
    ui::TextBox txtDate3{*this, "txtDate3", 11};
    ui::Label lblDate4{*this, "lblDate4", "Date4"};
    ui::TextBox txtDate4{*this, "txtDate4", 11};

    ui::Frame frmLieferVon{*this, "frmLieferVon", "Lieferzeitraum"};
    ui::Label lblLieferVon{*this, "lblLieferVon", "Lieferzeitraum von"};
    ui::TextBox txtLieferVon{*this, "txtLieferVon", 11};
    ui::Label lblLieferBis{*this, "lblLieferBis", "bis"};
    ui::TextBox txtLieferBis{*this, "txtLieferBis", 11};

    ui::Frame frmRechnung{*this, "frmRechnung", "Abrechnung"};
    ui::Label lblRechnungsArt{*this, "lblRechnungsArt", "Rechnungsart"};
    ui::TextBox txtRechn{*this, "txtRechn", 24};
    ui::Label lblBuchnungsArt{*this, "lblBuchnungsArt", "Buchnungsart"};
    ui::TextBox txtBuchn{*this, "txtBuchn", 24};
    ui::Label lblWahrung{*this, "lblWahrung", "Währung"};
    ui::TextBox txtWahrung{*this, "txtWahrung", 8};

    ui::Frame Frame1{*this, "Frame1", "Mandant"};
    ui::Label lblMandant{*this, "lblMandant", "Mandant"};
    std::array<ui::TextBox, 2> txtMandant{ui::TextBox{*this, "txtMandant(0)", 8},
                                          ui::TextBox{*this, "txtMandant(1)", 22}};
    ui::Frame Frame2{*this, "Frame2", "Lieferadresse"};
    ui::Label Label1{*this, "Label1", "Lieferadresse"};
    std::array<ui::TextBox, 2> txtLieferadresse{ui::TextBox{*this, "txtLieferadresse(0)", 8},
                                                ui::TextBox{*this, "txtLieferadresse(1)", 22}};

    ui::Frame frmNumbers{*this, "frmNumbers", "Zahlen"};
    std::array<ui::Label, 10> lblNumber = ui::controlArray<ui::Label, 10>(*this, "lblNumber");
    std::array<ui::TextBox, 10> txtNumber = ui::controlArray<ui::TextBox, 10>(*this, "txtNumber", 11);
    ui::Frame frmKopfs{*this, "frmKopfs", "Texte"};
    std::array<ui::Label, 10> LabelKopf = ui::controlArray<ui::Label, 10>(*this, "LabelKopf");
    std::array<ui::TextBox, 10> txtKopf = ui::controlArray<ui::TextBox, 10>(*this, "txtKopf", 44);

    ui::Button btnOk{*this, "btnOk", "Ok"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};

    std::vector<parts::NumberField> numbers_; ///< NUMM1 to NUMM10
    parts::LookupBox rechnungsart_;
    parts::LookupBox buchungsart_;
    parts::PersonBox mandant_;
    parts::PersonBox lieferadresse_;
    parts::SharedRow row_{services_, session_};
};

} // namespace tellurix::contract
