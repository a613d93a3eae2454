#include "module/lines/PriceChange.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/typed_text.h"
#include "module/ui/input/number_box.h"

#include <algorithm>
#include <stdexcept>

namespace tellurix::lines {

using base::Decimal;
using base::StatementText;

namespace {

constexpr int fixedAmount = 0;
constexpr int percentage = 1;

} // namespace

Decimal changedPrice(const Decimal& price, const Decimal& by, ChangeKind kind) {
    if (kind == ChangeKind::amount) return (price + by).rounded(2);
    return (price * (Decimal{100} + by)).dividedByTenTo(2).rounded(2);
}

PriceChange::PriceChange(ui::Form& form, const base::Locale& locale, std::function<void(int)> changed)
    : locale_(locale),
      changed_(std::move(changed)),
      btnPreiseAendern(form, "btnPreiseAendern", "Preise ändern"),
      frmPreiseAendern(form, "frmPreiseAendern", "Vertragspreise ändern"),
      lblErklarung(form, "lblErklarung",
                   "Die Preise des gesamten Vertrages werden je nach Auswahl um einen Fixwert oder "
                   "prozentuell verändert."),
      lblWert(form, "lblWert", "Wert"),
      txtWert(form, "txtWert", 12),
      lblFixProzent(form, "lblFixProzent", "+/-"),
      cmbFixProzent(form, "cmbFixProzent", 6),
      grdVorschau(form, "grdVorschau", 4) {
    ui::makeNumberBox(txtWert, "-#####0.00", locale_);
    cmbFixProzent.add("+/-");
    cmbFixProzent.add("%");
    grdVorschau.setColumns({{.caption = "Bezeichnung", .width = 32},
                            {.caption = "Preis bisher", .width = 14, .rightAligned = true},
                            {.caption = "Preis neu", .width = 14, .rightAligned = true}});
    txtWert.onChange = [this] { preview(); };
    cmbFixProzent.onChange = [this] { preview(); };
    btnPreiseAendern.onClick = [this] { press(); };
}

ui::Layout PriceChange::layout() {
    return ui::frame(frmPreiseAendern,
                     {lblErklarung,
                      ui::fields(2, {ui::field(lblWert, txtWert), ui::field(lblFixProzent, cmbFixProzent)}),
                      grdVorschau});
}

void PriceChange::setEnabled(bool enabled) {
    btnPreiseAendern.setEnabled(enabled);
    frmPreiseAendern.setEnabled(enabled);
}

void PriceChange::open(parts::OpenContract contract) {
    contract_ = std::move(contract);
    hide();
}

void PriceChange::hide() {
    frmPreiseAendern.setVisible(false);
    txtWert.setText("");
    cmbFixProzent.select(fixedAmount);
}

ChangeKind PriceChange::kind() const {
    return cmbFixProzent.selected() == percentage ? ChangeKind::percent : ChangeKind::amount;
}

bool PriceChange::close() {
    if (!frmPreiseAendern.visible()) return false;
    hide();
    parts::SafeSetFocus(btnPreiseAendern);
    return true;
}

void PriceChange::press() {
    if (frmPreiseAendern.visible()) {
        change();
    } else {
        show();
    }
}

void PriceChange::linesChanged() {
    if (frmPreiseAendern.visible()) readLines();
}

void PriceChange::show() {
    readLines();
    frmPreiseAendern.setVisible(true);
    parts::SafeSetFocus(txtWert);
    txtWert.selectAll();
}

void PriceChange::readLines() {
    StatementText query{"SELECT BEZEICHNUNG,PREIS FROM VERTRAG_PREISE WHERE ID_VERTRAG = "};
    query.number(contract_.id).fixed(" ORDER BY ORDNUNG");
    lines_.clear();
    for (auto line = contract_.connection().open(query.text()); !line->atEnd(); line->moveNext())
        lines_.push_back({line->text("BEZEICHNUNG"), base::numberIn(line->field("PREIS"))});
    preview();
}

void PriceChange::preview() {
    const auto by = base::parseNumber(txtWert.text(), locale_);
    std::vector<ui::Grid::Row> rows;
    for (const Line& line : lines_) {
        std::string before;
        std::string after;
        if (line.price) before = base::formatNumber(*line.price, "##,##0.00##", locale_);
        if (line.price && by) {
            try {
                after = base::formatNumber(changedPrice(*line.price, *by, kind()), "##,##0.00", locale_);
            } catch (const std::out_of_range&) {
                after = base::ownText(base::OwnText::priceTooLarge, contract_.session.language);
            }
        }
        rows.push_back({line.description, std::move(before), std::move(after)});
    }
    grdVorschau.setRows(std::move(rows));
}

std::string PriceChange::statement() {
    const std::string amount = parts::typedNumber(txtWert);
    StatementText text{"UPDATE VERTRAG_PREISE SET "};
    if (kind() == ChangeKind::percent) {
        text.fixed("PREIS = ROUND(PREIS * (100 + ").number(amount).fixed(") / 100,2)");
    } else {
        text.fixed("PREIS = ROUND(PREIS  + ").number(amount).fixed(",2)");
    }
    return text.fixed(" WHERE ID_Vertrag = ").number(contract_.id).text();
}

void PriceChange::change() {
    readLines();
    const std::string amount = txtWert.text();
    const std::string question = "Wollen Sie die Preise des Vertrages um " + amount +
                                 (kind() == ChangeKind::percent ? " Prozent" : "") + " verändern?";
    if (parts::ShowMessage(contract_.services->display, question, ui::box::yesNo, "Vertrag Preisänderung") !=
        ui::Answer::yes) {
        return;
    }
    // Leaving the box has made "0,00" of "0". Adding nothing would still round every price.
    const auto by = base::parseNumber(amount, locale_);
    if (amount.empty() || (by && *by == Decimal{})) return;
    contract_.connection().execute(statement());
    const auto count = std::ranges::count_if(lines_, [](const Line& line) { return line.price.has_value(); });
    hide();
    changed_(static_cast<int>(count));
}

} // namespace tellurix::lines
