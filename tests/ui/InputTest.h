#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/date_box.h"
#include "module/ui/input/number_box.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {

/// A screen with a little of everything that the rules of input speak of.
class Order final : public ui::Form {
public:
    Order() : Form("Order", "Bestellung") {
        ui::makeDateBox(
            txtDatum, [] { return base::Date{std::chrono::year{2025} / 12 / 30}; },
            [this] {
                ++invalidDates;
                txtDatum.setError("TT.MM.JJJJ");
            });
        ui::makeNumberBox(txtMenge, "#####0.00", base::Locale::german());
        txtKunde.onPick = [this] {
            ++picks;
            txtKunde.setText("Maier");
        };
        txtGesperrt.setLocked(true);
        btnOk.onClick = [this] { unload(); };
        btnFail.onClick = [] { throw std::runtime_error{"der Server ist weg"}; };
        btnRefuse.onClick = [this] { throw ui::RefusedInput{txtMenge, {{base::OwnText::numberMissing}}}; };
        btnKunden.onClick = [this] { ++customersOpened; };
        btnCancel.onClick = [this] { unload(); };
        btnCancel.setCausesValidation(false);
        setCancelButton(btnCancel);
        setLayout(ui::column({
            ui::field(lblName, txtName),
            ui::field(lblDatum, txtDatum),
            ui::field(lblMenge, txtMenge),
            ui::field(lblKunde, txtKunde),
            txtGesperrt,
            ui::frame(frmExtra, {chkExtra}),
            chart,
            btnKunden,
            btnFail,
            btnRefuse,
            btnNeu,
            btnOk,
            btnCancel,
        }));
    }

    int invalidDates = 0;
    int picks = 0;
    int customersOpened = 0;
    bool mayClose = true;

    ui::Label lblName{*this, "lblName", "&Name"};
    ui::TextBox txtName{*this, "txtName"};
    ui::Label lblDatum{*this, "lblDatum", "Datum"};
    ui::TextBox txtDatum{*this, "txtDatum"};
    ui::Label lblMenge{*this, "lblMenge", "&Menge"};
    ui::TextBox txtMenge{*this, "txtMenge"};
    ui::Label lblKunde{*this, "lblKunde", "Ku&nde"};
    ui::TextBox txtKunde{*this, "txtKunde"};
    ui::TextBox txtGesperrt{*this, "txtGesperrt"};
    ui::Frame frmExtra{*this, "frmExtra", "Extra"};
    ui::CheckBox chkExtra{*this, "chkExtra", "E&xtra"};
    ui::Chart chart{*this, "chart"};
    ui::Button btnKunden{*this, "btnKunden", "K&unden"};
    ui::Button btnFail{*this, "btnFail", "Fehler"};
    ui::Button btnRefuse{*this, "btnRefuse", "A&&u"};
    ui::Button btnNeu{*this, "btnNeu", "&Neu"};
    ui::Button btnOk{*this, "btnOk", "Ok"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};

private:
    bool queryUnload() override { return mayClose; }
};

/// A test of the rules of input, on a screen with a little of everything.
class InputTest : public testing::Test {
protected:
    void work(const ScriptedDisplay::Script& script) {
        display.onWindow("Order", script);
        display.showModal(order);
    }

    ScriptedDisplay display;
    Order order;
};

} // namespace tellurix::tests
