#include "module/lines/F_OffeneMenge.h"

#include "module/base/date_format.h"
#include "module/base/number_format.h"
#include "module/parts/contract_title.h"
#include "module/parts/grids/grid_layout.h"

namespace tellurix::lines {

using base::Decimal;
using base::OwnText;

F_OffeneMenge::F_OffeneMenge(host::HostServices& services, const host::TlxVar& session)
    : Form("F_OffeneMenge"), services_(services), session_(session) {
    btnSchliessen.onClick = [this] { unload(); };
    setCancelButton(btnSchliessen);
    setLayout(ui::column({lblZeile, ui::Layout{grdHolz}.growing(), lblSumme,
                          ui::field(lblFrueher, lstFrueher), ui::bar({}, {}, {btnSchliessen})}));
}

std::string F_OffeneMenge::text(OwnText text, const std::vector<std::string>& values) const {
    return base::ownText(text, session_.language, values);
}

std::string F_OffeneMenge::number(const Decimal& value) const {
    return base::formatNumber(value, "##,##0.00#", services_.locale);
}

void F_OffeneMenge::Run(const std::string& contract, const DeliveredQuantity::Explanation& explanation,
                        const std::string& description, const std::string& unit, const Decimal& agreed) {
    setTitle(parts::titleWith(text(OwnText::openQuantity), contract));
    lblFrueher.setCaption(text(OwnText::claimedEarlier));
    btnSchliessen.setCaption(text(OwnText::close));
    lblZeile.setCaption(description);
    grdHolz.setColumns(
        {{.caption = text(OwnText::logNumber), .width = 12},
         {.caption = text(OwnText::logDate), .width = 11},
         {.caption = text(OwnText::logSpecies), .width = 8},
         {.caption = text(OwnText::logSort), .width = 8},
         {.caption = text(OwnText::logMeasure), .width = 14, .rightAligned = true},
         {.caption = unit.empty() ? text(OwnText::logQuantity) : unit, .width = 14, .rightAligned = true}});
    Decimal sum;
    std::vector<ui::Grid::Row> rows;
    for (const DeliveredQuantity::CountedLog& log : explanation.logs) {
        sum = sum + log.quantity;
        rows.push_back({log.number, log.date ? base::dateText(base::dayOf(*log.date)) : std::string{},
                        log.species, log.sort, number(log.measured) + " " + log.measuredIn,
                        number(log.quantity)});
    }
    sorting_.show(std::move(rows));

    const auto inUnit = [&](const Decimal& value) {
        return unit.empty() ? number(value) : number(value) + " " + unit;
    };
    std::string summary = text(OwnText::deliveredOf, {inUnit(sum), inUnit(agreed), inUnit(agreed - sum)});
    if (!explanation.unitHasMeasure) summary += ". " + text(OwnText::noMeasureInUnit);
    lblSumme.setCaption(std::move(summary));

    lstFrueher.clear();
    for (const DeliveredQuantity::Claim& claim : explanation.earlier) {
        lstFrueher.add(text(claim.logs == 1 ? OwnText::oneLogClaimed : OwnText::logsClaimed,
                            {std::to_string(claim.place), std::to_string(claim.logs)}));
    }
    parts::GridLayouts layouts{services_, session_, *this};
    services_.display.showModal(*this);
    layouts.keep();
}

} // namespace tellurix::lines
