#include "module/lines/F_VertragMengen.h"

#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/host/module_state.h"
#include "module/lines/over_delivery.h"

namespace tellurix::lines {

using base::Decimal;

namespace {

constexpr const char* currentMark = ">>";
constexpr int markColumn = 0;

// clang-format off
const LineKind quantityLines{
    .table = "VERTRAG_MENGEN",
    .dialogKey = "VERTM",
    .unitQuery = "SELECT EINHEIT_ID,EINHEIT FROM WARENEINHEIT WHERE HOLZ =1",
    .lineColumns =
        "SELECT VERTRAG_MENGEN.ID,VERTRAG_MENGEN.ID_VERTRAG,VERTRAG_MENGEN.ORDNUNG,VERTRAG_MENGEN.BEZEICHNUNG,VERTRAG_MENGEN.MENGE,"
        "(SELECT WARENEINHEIT.EINHEIT FROM WARENEINHEIT WHERE WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT) AS EINHEIT,"
        "VERTRAG_MENGEN.ID_WARENEINHEIT "
        " FROM VERTRAG_MENGEN",
    .contractColumn = "VERTRAG_MENGEN.ID_VERTRAG",
    .keyColumn = "VERTRAG_MENGEN.ID",
    .placeColumn = "VERTRAG_MENGEN.ORDNUNG",
    .none = base::OwnText::noQuantities,
};
// clang-format on

} // namespace

F_VertragMengen::F_VertragMengen(host::HostServices& services)
    : LineEditor(services, quantityLines, "F_VertragMengen", "Mengen"),
      quantity_(txtMenge, "-########0.00", services.locale),
      offeneMenge_(services, session_) {
    row_.number(quantity_, "MENGE");
    txtOffen.setLocked(true);
    txtOffen.setRightAligned(true);
    btnOffen.setToolTip("Zeigt, welche Stämme für diese Zeile zählen");
    btnOffen.onClick = [this] { explainOpenQuantity(); };
    arrange({ui::field(lblMenge, txtMenge), ui::field(lblUnit, cboUnit)}, {},
            {ui::field(lblOffen, txtOffen, btnOffen)});
}

void F_VertragMengen::prepare(bool shown) {
    if (shown) overDelivery_ = overDeliveryOf(*session_.connection, contract_);
}

std::vector<parts::KeyedGrid::Column> F_VertragMengen::gridColumns() const {
    return {{.width = 4},
            {.caption = lblBezeichnung.caption(), .width = 34, .field = "BEZEICHNUNG"},
            {.caption = lblMenge.caption(),
             .width = 14,
             .field = "MENGE",
             .mask = "##,##0.00",
             .rightAligned = true},
            {.caption = lblUnit.caption(), .width = 10, .field = "EINHEIT"}};
}

void F_VertragMengen::lineShown(base::Recordset& line) {
    agreed_ = quantityIn(line.field("MENGE"));
}

void F_VertragMengen::showNoLine() {
    emptyForNewLine();
    agreed_ = {};
}

void F_VertragMengen::emptyForNewLine() {
    quantity_.show(base::Null{});
    showNoOpenQuantity();
}

void F_VertragMengen::requireFields() {
    static_cast<void>(quantity_.value());
}

void F_VertragMengen::writeFields(base::UpdatableRecordset& line) {
    line.setField("Menge", quantity_.value());
}

void F_VertragMengen::currentLineShown() {
    markCurrentRow();
    showNoOpenQuantity();
    if (!hasLines()) return;
    try {
        showOpenQuantity();
    } catch (const std::exception& error) {
        // A selection that cannot be read must not keep the line from being opened and put right.
        services_.errors.report(error);
    }
}

void F_VertragMengen::stateShown() {
    markCurrentRow();
    btnOffen.setEnabled(viewing() && hasLines());
}

void F_VertragMengen::markCurrentRow() {
    for (int row = 0; row < static_cast<int>(MSFlexGrid1.rows().size()); ++row)
        MSFlexGrid1.setCell(row, markColumn, row == MSFlexGrid1.currentRow() ? currentMark : "");
}

DeliveredQuantity F_VertragMengen::delivered() const {
    return DeliveredQuantity{{.services = &services_, .session = session_, .id = contract_, .name = name_},
                             host::moduleState().context.StrVer_Type};
}

void F_VertragMengen::showNoOpenQuantity() {
    txtOffen.setText("");
    txtOffen.setWarning("");
}

void F_VertragMengen::showOpenQuantity() {
    const Decimal quantity = delivered().of(place());
    txtOffen.setText(base::formatNumber(agreed_ - quantity, "0.00", services_.locale));
    const Decimal permitted = permittedQuantity(agreed_, overDelivery_);
    if (quantity > permitted) {
        const auto number = [this](const Decimal& value) {
            return base::formatNumber(value, "##,##0.00", services_.locale);
        };
        txtOffen.setWarning(base::ownText(base::OwnText::overDelivery, session_.language,
                                          {number(quantity), number(permitted)}));
    }
}

void F_VertragMengen::explainOpenQuantity() {
    const int row = MSFlexGrid1.currentRow();
    offeneMenge_.Run(name_, delivered().explain(place()), MSFlexGrid1.cell(row, 1), MSFlexGrid1.cell(row, 3),
                     agreed_);
}

} // namespace tellurix::lines
