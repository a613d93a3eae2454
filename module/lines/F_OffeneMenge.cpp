#include "lines/F_OffeneMenge.h"

#include "common/date_format.h"
#include "common/number_format.h"

namespace tellurix::lines {

using common::Decimal;

F_OffeneMenge::F_OffeneMenge(host::HostServices& services, const host::TlxVar& session)
    : Form("F_OffeneMenge", "Offene Menge"), services_(services), session_(session) {
    grdHolz.setColumns({{.caption = "Nummer", .width = 12},
                        {.caption = "Datum", .width = 11},
                        {.caption = "Ha", .width = 8},
                        {.caption = "Hs", .width = 8},
                        {.caption = "Maß", .width = 14, .rightAligned = true},
                        {.caption = "Menge", .width = 14, .rightAligned = true}});
    btnSchliessen.onClick = [this] { unload(); };
    setCancelButton(btnSchliessen);
    setLayout(ui::column({lblZeile, ui::Layout{grdHolz}.growing(), lblSumme,
                          ui::field(lblFrueher, lstFrueher), ui::row({btnSchliessen})}));
}

std::string F_OffeneMenge::number(const Decimal& value) const {
    return common::formatNumber(value, "##,##0.00#", services_.locale);
}

void F_OffeneMenge::Run(const DeliveredQuantity::Explanation& explanation, const std::string& description,
                        const std::string& unit, const Decimal& agreed) {
    services_.localizer.localize(session_, *this);
    lblZeile.setCaption(description);
    auto columns = grdHolz.columns();
    columns.back().caption = unit.empty() ? "Menge" : unit;
    grdHolz.setColumns(std::move(columns));
    Decimal sum;
    std::vector<ui::Grid::Row> rows;
    for (const DeliveredQuantity::CountedLog& log : explanation.logs) {
        sum = sum + log.quantity;
        rows.push_back({log.number, log.date ? common::dateText(common::dayOf(*log.date)) : std::string{},
                        log.species, log.sort, number(log.measured) + " " + log.measuredIn,
                        number(log.quantity)});
    }
    grdHolz.setRows(std::move(rows));

    std::string summary = "Geliefert " + number(sum) + " " + unit + " von " + number(agreed) + " " + unit +
                          ", offen " + number(agreed - sum) + " " + unit;
    if (!explanation.unitHasMeasure)
        summary += ". In dieser Einheit haben Stämme kein Maß, deshalb zählt keiner.";
    lblSumme.setCaption(std::move(summary));

    lstFrueher.clear();
    for (const DeliveredQuantity::Claim& claim : explanation.earlier) {
        lstFrueher.add("Zeile " + std::to_string(claim.place) + ": " + std::to_string(claim.logs) +
                       (claim.logs == 1 ? " Stamm" : " Stämme"));
    }
    services_.display.showModal(*this);
}

} // namespace tellurix::lines
