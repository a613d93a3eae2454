#include "tests/support/EarlierVisit.h"

#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"

namespace tellurix::tests {

namespace {

void leaveHeadBehind(User& user) {
    for (int i = 0; i < 10; ++i) {
        user.type("txtNumber(" + std::to_string(i) + ")", std::to_string(900 + i));
        user.type("txtKopf(" + std::to_string(i) + ")", "vorher " + std::to_string(i));
    }
    for (const char* date : {"txtDate1", "txtDate2", "txtDate3", "txtDate4", "txtLieferVon", "txtLieferBis"})
        user.type(date, "31.12.1999");
    user.type("txtWahrung", "EUR");
    user.type("txtMandant(0)", "100");
    user.type("txtLieferadresse(0)", "6003");
    user.type("txtBuchn", "Frachterlöse");
    user.type("txtRechn", "gibt es nicht");
    user.click("btnCancel");
}

} // namespace

void leaveLinesBehind(User& user, ScriptedDisplay& display) {
    const bool prices = user.window().name() == "F_VertragPreise";
    const int last = static_cast<int>(user.grid("MSFlexGrid1").rows().size()) - 1;
    if (last < 0) {
        user.click("cmdOk");
        return;
    }
    user.select("MSFlexGrid1", last, 2);
    if (prices) {
        user.click("btnPreiseAendern");
        user.type("txtWert", "7");
        user.select("cmbFixProzent", 1);
        user.click("chkEdit");
    }
    user.click("cmdNeu");
    user.type("txtBEZEICHNUNG", "vorher");
    user.type(prices ? "txtPreis" : "txtMenge", "7777");
    user.select("cboUnit", 3);
    user.type("txtHa", "EI");
    user.click("cmdAbbrechen");
    if (prices) {
        user.select("MSFlexGrid1", last, 2);
        user.doubleClick("MSFlexGrid1"); // leaves the cell open
    } else {
        user.click("cmdBearbeiten");
        user.type("txtMenge", "8888");
        display.onMessage("", ui::Answer::yes); // in the language of the one who was there before
    }
    user.close();
}

std::string stateOf(const ui::Form& form) {
    std::string state =
        form.title() + ", in " + (form.focused() == nullptr ? "nothing" : form.focused()->name()) + "\n";
    for (const ui::Control* control : form.controls()) {
        if (!control->showing()) continue;
        state += control->name() + (control->usable() ? " usable" : "");
        if (const auto* box = ui::as<ui::TextBox>(control))
            state += " '" + box->text() + "' " + box->tag() + box->warning();
        if (const auto* label = ui::as<ui::Label>(control)) state += " " + label->caption();
        if (const auto* check = ui::as<ui::CheckBox>(control)) state += check->checked() ? " ticked" : "";
        if (const auto* combo = ui::as<ui::ComboBox>(control)) state += " " + combo->selectedText();
        if (const auto* grid = ui::as<ui::Grid>(control)) {
            state += " at " + std::to_string(grid->currentRow()) + (grid->cellEditor() ? " in work" : "");
            for (const ui::Grid::Row& row : grid->rows()) {
                for (const std::string& cell : row)
                    state += " | " + cell;
            }
        }
        state += "\n";
    }
    return state;
}

void leaveMuchBehind(ScriptedDisplay& display) {
    display.onWindow("F_Vertrag", [&](User& user) {
        user.click("btnHeader");
        user.click("KundeButton");
        user.click("PreisButton");
        user.click("PosButton");
        user.click("chkAbgeschlossen");
        user.click("chkAClEmpty");
        user.type("txtTypeOfVertrag", "A1");
        user.type("txtVertrag", "A1-2025-001 Einkauf Breitenau");
        user.click("btnZusatz");
        user.focus("txtZusatzText(1)");
        user.close();
    });
    display.onWindow("F_HeaderVertrag", leaveHeadBehind);
    for (const char* lines : {"F_VertragPreise", "F_VertragMengen"})
        display.onWindow(lines, [&](User& user) { leaveLinesBehind(user, display); });
}

} // namespace tellurix::tests
